"""python3 -m bench.core.summary: reads Google Benchmark's JSON and prints the microseconds of each operation, a row an
operation, a column a length of the list, without and with images."""

import json
import sys

from bench.table import print_table

times = {}
for benchmark in json.load(sys.stdin)["benchmarks"]:
    name, records, image = benchmark["name"].split("/")
    row = times.setdefault((name, image != "image:0"), {})
    row[int(records.removeprefix("records:"))] = benchmark["cpu_time"]

lengths = sorted(next(iter(times.values())))
rows = [
    [name, "1 MiB" if image else "none",
     *(f"{row[length]:,.3g}" if row[length] < 100 else f"{row[length]:,.0f}" for length in lengths)]
    for (name, image), row in times.items()
]
print_table(
    "The core: microseconds on the processor, by the number of records",
    ["operation", "images", *(f"{length:,}" for length in lengths)], rows)
