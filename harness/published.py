"""Says what the Finder extension would find in a user folder, read with Python's own property-list reader."""

from harness.stores import LISTS, LOCAL, SHARED


def first_names(records):
    names = [record.get("displayName", "") for record in records[:4]]
    return ", ".join(names) + (", ..." if len(records) > 4 else "")


def describe(title, values):
    print(title)
    for key in LISTS:
        if key not in values:
            print(f"  {key}: not there")
            continue
        records = values[key]
        names = f": {first_names(records)}" if records else ""
        print(f"  {key}: {len(records)} records{names}")


def describe_stores(stores):
    shared = stores.read(SHARED)
    describe(f"Published to the extension ({SHARED}):", shared)
    print(f"  arrOfEnableOther: {len(shared.get('arrOfEnableOther', []))} names")
    switches = sorted(key for key, value in shared.items() if isinstance(value, bool))
    print(f"  {len(switches)} switches, {sum(shared[key] for key in switches)} of them on")
    describe(f"Kept by the application ({LOCAL}):", stores.read())
