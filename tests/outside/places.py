"""Where things are in the settings window, in points from its upper left. Nobody outside can ask it: the places follow
from the constants of its layout, read from the sources, and from the table of the pages below."""

import functools
import pathlib
import re
from typing import NamedTuple

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, ICONS, TEMPLATES

ROOT = pathlib.Path(__file__).resolve().parents[2]
CONSTANT = re.compile(r"constexpr (?:CGFloat|double) (\w+) = ([\d.]+);")
METHOD = re.compile(r"- \(CGFloat\)(\w+) \{\s*return ([\d.]+);\s*\}")

# The toolkit's: the line of column titles above a table, the frame around it, its scroller.
TABLE_HEAD, TABLE_FRAME, SCROLLER = 22, 1, 12
# Of a button's title: enough to hit the button beside it.
LETTER_WIDTH, BUTTON_PADDING = 7.4, 32


@functools.cache
def constants():
    """Of the layout, by the file's name without ending, and name: "SidebarBuilder.inset"."""
    found = {}
    for path in [*ROOT.glob("ui/*.*"), *ROOT.glob("front/*.*"), *ROOT.glob("gnustep/theme/*.mm")]:
        text = path.read_text()
        for name, value in [*CONSTANT.findall(text), *METHOD.findall(text)]:
            found[f"{path.stem}.{name}"] = float(value)
    return found


def constant(name):
    if name not in constants():
        raise LookupError(f"the layout has no constant {name}: has it been renamed?")
    return constants()[name]


# A row dragged to so small a part of another one's height lands above it.
GAP = 0.05


class Column(NamedTuple):
    identifier: str
    width: float
    is_flexible: bool = False


class Page(NamedTuple):
    title: str
    key: str = ""
    switches: int = 0
    has_enable_all: bool = False
    columns: tuple = ()
    name_column: str = ""
    switch_column: str = ""
    add_title: str = ""
    has_reset: bool = False

    @property
    def icon_column(self):
        return next(column.identifier for column in self.columns if column.identifier.endswith("Icon"))


PAGES = (
    Page("New File", TEMPLATES, 4, True,
         (Column("Enable", 34), Column("NewFileIcon", 44), Column("NewFileDisplayName", 260, True),
          Column("Extension", 110), Column("EnableMainMenu", 86)),
         "NewFileDisplayName", "Enable", "Add Templates\u2026", True),
    Page("Copy & Move To", COPY_TARGETS, 4, False,
         (Column("Room", 6), Column("Enable", 28), Column("SendFileIcon", 40), Column("Note", 200, True),
          Column("realPath", 280, True)),
         "Note", "Enable", "Add Folders\u2026", True),
    Page("Common Folders", COMMON_FOLDERS, 2, False,
         (Column("commonPathIcon", 40), Column("commonPathDisplayName", 200, True), Column("realPath", 280, True)),
         "commonPathDisplayName", "", "Add Folders\u2026"),
    Page("Custom Icons", ICONS, 1, True,
         (Column("Enable", 34), Column("Icon", 44), Column("CustomIconName", 300, True), Column("Size", 112)),
         "CustomIconName", "Enable", "Add Pictures\u2026", True),
    Page("More Items", ACTIONS, 4, True,
         (Column("OthersEnable", 34), Column("OthersIcon", 52), Column("OthersDisplayName", 254, True),
          Column("OthersNote", 256, True)),
         "OthersDisplayName", "OthersEnable", "Add Items\u2026", True),
    Page("More Apps"),
)
PAGE_OF = {page.key: page for page in PAGES if page.key}


class Places:
    """In a window of that size, its menu bar included, in English. Rows are counted from the first in sight."""

    def __init__(self, width, height):
        self.left = constant("WindowLayout.sidebarWidth") + 1 + constant("PageFrame.margin")
        self.right = width - constant("PageFrame.margin")
        self.top, self.bottom = constant("TNTheme.menuBarHeight"), height
        self.middle = self.bottom - constant("PageFrame.margin") - constant("PageViewBuilder.buttonBarHeight") / 2

    # The sidebar

    def page_button(self, page):
        pitch = constant("SidebarBuilder.pageButtonPitch")
        return (constant("WindowLayout.sidebarWidth") / 2, self.top + constant("SidebarBuilder.topMargin")
                + PAGES.index(page) * pitch + constant("SidebarBuilder.pageButtonHeight") / 2)

    # A page, from the top

    def heading(self, _=None):
        """Right of its title, where nothing is."""
        return (self.left + self.right) / 2, self.top + constant("PageFrame.margin")

    def heading_end(self):
        return (self.top + constant("PageFrame.margin") + constant("PageFrame.headingHeight") + 2
                + constant("PageFrame.explanationHeight") + constant("PageFrame.headingGap"))

    def switch(self, number):
        """Two to a row; the box is at the left of its title."""
        line = (number // 2 + 1) * constant("PageViewBuilder.switchRowPitch")
        return (self.left + number % 2 * constant("PageViewBuilder.switchColumnPitch") + 9,
                self.heading_end() + line - constant("PageViewBuilder.switchHeight") / 2)

    def switches_end(self, page):
        lines = (page.switches + 1) // 2
        return self.heading_end() + lines * constant("PageViewBuilder.switchRowPitch") + constant("PageViewBuilder.gap")

    def enable_all(self, page):
        return self.left + 9, self.switches_end(page) + constant("PageViewBuilder.switchHeight") / 2

    # The table

    def first_row_top(self, page):
        enable_all = constant("PageViewBuilder.switchHeight") + 6 if page.has_enable_all else 0
        return self.switches_end(page) + enable_all + TABLE_FRAME + TABLE_HEAD

    def table_bottom(self):
        return (self.middle - constant("PageViewBuilder.buttonBarHeight") / 2 - constant("PageViewBuilder.gap")
                - TABLE_FRAME)

    def below_rows(self, _=None):
        return self.left + 100, self.table_bottom() - 5

    def rows_in_sight(self, page):
        return int((self.table_bottom() - self.first_row_top(page)) // constant("CellView.rowHeight"))

    def column_left(self, page, identifier):
        """Columns that resize share what the table has more than their widths, or less."""
        width = self.right - self.left - 2 * TABLE_FRAME
        flexible = sum(column.is_flexible for column in page.columns)
        share = (width - sum(column.width for column in page.columns)) / flexible
        left = self.left + TABLE_FRAME
        for column in page.columns:
            if column.identifier == identifier:
                return left
            left += column.width + share * column.is_flexible
        raise LookupError(f"{page.title} has no column {identifier}")

    def cell(self, page, row, identifier=None, height=0.5):
        """At the left of the cell, where its control is; `height` is a part of the row's."""
        # The one in the middle of its column hits with a scroller in the table and without.
        offset = 37 if identifier == "EnableMainMenu" else 16
        return (self.column_left(page, identifier or page.name_column) + offset,
                self.first_row_top(page) + (row + height) * constant("CellView.rowHeight"))

    def row_switch(self, page, row):
        return self.cell(page, row, page.switch_column)

    # The buttons below it

    def _button_width(self, title):
        return max(constant("ControlMaking.minimumButtonWidth"),
                   len(title) * LETTER_WIDTH + BUTTON_PADDING)

    def add(self, _=None):
        return self.left + constant("ControlMaking.minimumButtonWidth") / 2, self.middle

    def remove(self, page):
        left = self.left + self._button_width(page.add_title) + constant("PageViewBuilder.gap")
        return left + constant("ControlMaking.minimumButtonWidth") / 2, self.middle

    def choose_folder(self, page):
        x, y = self.remove(page)
        return x + constant("ControlMaking.minimumButtonWidth") + constant("PageViewBuilder.gap"), y

    def reset(self, _=None):
        return self.right - constant("ControlMaking.minimumButtonWidth") / 2, self.middle
