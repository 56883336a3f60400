# SPDX-License-Identifier: MIT
"""Several screens on one virtual X server: parts of its picture that count as monitors (RandR 1.5)."""

import ctypes
from ctypes import POINTER, c_char_p, c_int, c_ulong, c_void_p


class Monitor(ctypes.Structure):
    """XRRMonitorInfo, as <X11/extensions/Xrandr.h> has it."""
    _fields_ = [("name", c_ulong), ("primary", c_int), ("automatic", c_int), ("noutput", c_int), ("x", c_int), ("y", c_int),
                ("width", c_int), ("height", c_int), ("mwidth", c_int), ("mheight", c_int), ("outputs", POINTER(c_ulong))]


class Resources(ctypes.Structure):
    """The beginning of XRRScreenResources."""
    _fields_ = [("timestamp", c_ulong), ("configTimestamp", c_ulong), ("ncrtc", c_int), ("crtcs", POINTER(c_ulong)),
                ("noutput", c_int), ("outputs", POINTER(c_ulong))]


def function(library, name, result, *arguments):
    found = getattr(library, name)
    found.restype, found.argtypes = result, arguments
    return found


class Screens:
    def __init__(self):
        xlib, randr = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXrandr.so.2")
        self._atom = function(xlib, "XInternAtom", c_ulong, c_void_p, c_char_p, c_int)
        self._sync = function(xlib, "XSync", c_int, c_void_p, c_int)
        self._close = function(xlib, "XCloseDisplay", c_int, c_void_p)
        self._allocate = function(randr, "XRRAllocateMonitor", POINTER(Monitor), c_void_p, c_int)
        self._set = function(randr, "XRRSetMonitor", None, c_void_p, c_ulong, POINTER(Monitor))
        self._delete = function(randr, "XRRDeleteMonitor", None, c_void_p, c_ulong, c_ulong)
        self._resources = function(randr, "XRRGetScreenResources", POINTER(Resources), c_void_p, c_ulong)
        self._display = function(xlib, "XOpenDisplay", c_void_p, c_char_p)(None)
        self._root = function(xlib, "XDefaultRootWindow", c_ulong, c_void_p)(self._display)

    def add(self, name, x, y, width, height):
        """The first one is the primary screen, and takes the place of the whole."""
        output = self._resources(self._display, self._root).contents.outputs[0]
        primary = name == "first"
        monitor = self._allocate(self._display, int(primary))
        if primary:
            monitor.contents.outputs[0] = output
        monitor.contents.name, monitor.contents.primary = self._atom(self._display, name.encode(), 0), int(primary)
        monitor.contents.x, monitor.contents.y = x, y
        monitor.contents.width, monitor.contents.height = width, height
        monitor.contents.mwidth, monitor.contents.mheight = width // 4, height // 4  # millimetres, at 96 to the inch
        self._set(self._display, self._root, monitor)
        self._sync(self._display, 0)

    def remove(self, name):
        self._delete(self._display, self._root, self._atom(self._display, name.encode(), 0))
        self._sync(self._display, 0)

    def close(self):
        self._close(self._display)
