"""Tables as Markdown shows them."""


def print_table(title, heads, rows):
    cells = [[str(cell) for cell in row] for row in [heads, *rows]]
    widths = [max(len(row[column]) for row in cells) for column in range(len(heads))]
    print(f"\n{title}\n")
    for index, row in enumerate(cells):
        padded = [cell.ljust(width) if column == 0 else cell.rjust(width)
                  for column, (cell, width) in enumerate(zip(row, widths))]
        print("| " + " | ".join(padded) + " |", flush=True)
        if index == 0:
            print("|" + "|".join("-" * (width + 1) + ("-" if column == 0 else ":")
                                 for column, width in enumerate(widths)) + "|")
