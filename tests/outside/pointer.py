"""The pointer's picture, which no picture of the screen shows."""

import contextlib
import ctypes
import ctypes.util


class _Image(ctypes.Structure):
    """As the X server's extension for this gives it."""

    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short),
                ("width", ctypes.c_ushort), ("height", ctypes.c_ushort),
                ("hot_x", ctypes.c_ushort), ("hot_y", ctypes.c_ushort), ("serial", ctypes.c_ulong),
                ("pixels", ctypes.POINTER(ctypes.c_ulong)), ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]


def _library(name, **results):
    library = ctypes.CDLL(ctypes.util.find_library(name))
    for function, result in results.items():
        getattr(library, function).restype = result
    return library


@contextlib.contextmanager
def _display(name):
    x = _library("X11", XOpenDisplay=ctypes.c_void_p)
    display = ctypes.c_void_p(x.XOpenDisplay(name.encode()))
    if not display:
        raise ConnectionError(f"no display {name}")
    try:
        yield x, display
    finally:
        x.XCloseDisplay(display)


def pointer_picture(display_name):
    """Size and pixels, whatever the pointer's place: two that are equal look alike."""
    with _display(display_name) as (x, display):
        fixes = _library("Xfixes", XFixesGetCursorImage=ctypes.POINTER(_Image))
        image = fixes.XFixesGetCursorImage(display)
        try:
            shown = image.contents
            return (shown.width, shown.height,
                    tuple(shown.pixels[index] & 0xFFFFFFFF for index in range(shown.width * shown.height)))
        finally:
            x.XFree(image)
