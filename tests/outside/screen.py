"""A screen with a window manager, a pointer and a keyboard."""

import re
import subprocess
import time

from harness.waiting import wait_until, wait_until_steady
from tests.outside.work import is_working

# A hand is no faster, and programs tell a drag from a click by it.
STEP_SECONDS = 0.04
# From one click to the next. A window manager, which sees each first, loses some that come at once.
CLICK_MILLISECONDS = 60
# Longer than a program rests before it goes on with what a key or a button does.
STILL_SECONDS = 0.15
# A look at the whole screen takes a thousandth of a second.
LOOK_SECONDS = 0.05
PROGRAM_SECONDS = 30
BUTTON, RIGHT_BUTTON, WHEEL_UP, WHEEL_DOWN = 1, 3, 4, 5

# The keys by what they are for: the program calls the left Alt key Command and the right one Option.
COMMAND, OPTION, SHIFT, CONTROL = "Alt_L", "Alt_R", "Shift_L", "Control_L"
GEOMETRY = re.compile(r"(?:Absolute upper-left [XY]|Width|Height): +(-?\d+)")


def command(key):
    return f"{COMMAND}+{key}"


def shift_command(key):
    return f"{COMMAND}+{SHIFT}+{key}"


def option_command(key):
    return f"{COMMAND}+{OPTION}+{key}"


class Screen:
    """`environment` names the display, whose memory is seen through `frames`. `programs` are the processes that what
    is done here gives work to, from the server on."""

    def __init__(self, environment, frames, server):
        self.environment, self.frames, self.programs = environment, frames, [server]

    def run(self, *command, **more):
        """Of a window that has gone, some programs wait for the next."""
        return subprocess.run([str(word) for word in command], env=self.environment, capture_output=True,
                              timeout=PROGRAM_SECONDS, check=True, **more).stdout

    def xdotool(self, *arguments):
        """What it answers, in words; none when it finds nothing."""
        try:
            return self.run("xdotool", *arguments).decode().split()
        except subprocess.CalledProcessError:
            return []

    def window_manager(self):
        """The number of its own window, in hexadecimal; empty without one."""
        return self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").decode().partition("window id # ")[2].strip()

    def give_keyboard_to_nobody(self):
        """To the window manager, as far as anybody can see."""
        self.xdotool("windowfocus", int(self.window_manager(), 16))

    def windows(self, title):
        """The windows in sight whose titles match the expression."""
        return [Window(self, number) for number in self.xdotool("search", "--onlyvisible", "--name", title)]

    def windows_of_class(self, expression):
        return [Window(self, number) for number in self.xdotool("search", "--onlyvisible", "--class", expression)]

    def window(self, title, seconds=20, process=None):
        """The latest such window, once there is one."""
        return wait_until(lambda: self.windows(title), f"a window {title}", seconds, process)[-1]

    def picture(self, window="root"):
        return self.run("import", "-window", window, "-depth", "8", "ppm:-")

    def keep_picture(self, path, window="root"):
        self.run("import", "-window", window, "-depth", "8", path)

    def settle(self, still=STILL_SECONDS):
        """Until nothing on the screen changes, its pointer included, and nobody is about to change it: on a busy
        machine a program has an event long before it comes to it."""
        wait_until_steady(self._quiet_frame, "a quiet screen", still, pause=LOOK_SECONDS)

    def _quiet_frame(self):
        """Like no other while a program works."""
        return object() if any(map(is_working, self.programs)) else self.frames.take()

    # The pointer

    def move(self, place):
        self.xdotool("mousemove", *(round(part) for part in place))

    def click(self, place, button=BUTTON):
        self.move(place)
        self.press(button)
        self.release(button)

    def press(self, button=BUTTON):
        self.xdotool("mousedown", button)

    def release(self, button=BUTTON):
        self.xdotool("mouseup", button)

    def wheel(self, steps):
        """Down; up when negative."""
        if steps == 0:
            return
        self.xdotool("click", "--repeat", abs(steps), "--delay", 20, WHEEL_DOWN if steps > 0 else WHEEL_UP)

    # The keyboard

    def key(self, *names):
        self.xdotool("key", *names)

    def hold(self, name):
        self.xdotool("keydown", name)

    def let_go(self, name):
        self.xdotool("keyup", name)

    def type(self, text):
        self.xdotool("type", "--delay", 15, text)

    def copy(self, text):
        """As another program does: the text is in the clipboard from now on."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), env=self.environment, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class Window:
    """Places are points from its upper left."""

    def __init__(self, screen, number):
        self.screen, self.number = screen, number

    def title(self):
        return " ".join(self.screen.xdotool("getwindowname", self.number))

    def geometry(self):
        """Of what is inside its frame, on the screen: left, top, width, height."""
        return tuple(map(int, GEOMETRY.findall(self.screen.run("xwininfo", "-id", self.number).decode())))

    def size(self):
        return self.geometry()[2:]

    def on_screen(self, place):
        left, top, _, _ = self.geometry()
        return left + place[0], top + place[1]

    def move_to(self, left, top):
        self.screen.xdotool("windowmove", "--sync", self.number, left, top)

    def resize(self, width, height):
        """As far as it lets itself be; gives the size then."""
        before = self.size()
        self.screen.xdotool("windowsize", self.number, width, height)
        if before != (width, height):
            wait_until(lambda: self.size() != before, "another size of the window")
        self.screen.settle(0.2)
        return self.size()

    def minimise(self):
        self.screen.xdotool("windowminimize", self.number)

    def bring_back(self):
        for step in ("windowmap", "windowactivate"):
            self.screen.xdotool(step, self.number)

    def is_dialog(self):
        return b"_NET_WM_WINDOW_TYPE_DIALOG" in self.screen.run("xprop", "-id", self.number, "_NET_WM_WINDOW_TYPE")

    def has_focus(self):
        return self.screen.xdotool("getwindowfocus") == [self.number]

    def focus(self):
        self.screen.xdotool("windowfocus", "--sync", self.number)

    def keep_picture(self, path):
        self.screen.keep_picture(path, self.number)

    def picture(self):
        return self.screen.picture(self.number)

    def move(self, place):
        x, y = (round(part) for part in place)
        self.screen.xdotool("mousemove", "--window", self.number, x, y)

    def click(self, place, times=1, button=BUTTON):
        self.move(place)
        self.screen.xdotool("click", "--repeat", times, "--delay", CLICK_MILLISECONDS, button)

    def drag_to(self, start, end, steps=12):
        """Holds the button down, also afterwards."""
        self.move(start)
        self.screen.press()
        self.drag_on(start, end, steps)

    def drag_on(self, start, end, steps=12):
        for step in range(1, steps + 1):
            self.move(a + (b - a) * step / steps for a, b in zip(start, end))
            time.sleep(STEP_SECONDS)

    def drag(self, start, end, steps=12):
        """Lets go once it can be seen where: a program that is busy until then takes no drag."""
        self.drag_to(start, end, steps)
        self.screen.settle()
        self.screen.release()
