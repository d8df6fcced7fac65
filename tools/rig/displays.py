# SPDX-License-Identifier: MIT
"""EDID blobs for the outputs of the dummy driver, which have none of their own."""
from __future__ import annotations

import ctypes
from collections.abc import Iterator, Mapping
from contextlib import contextmanager

XA_INTEGER = 19
PROP_MODE_REPLACE = 0


def make_edid(vendor: str, product: int, serial: int, name: str, width: int, height: int) -> bytes:
    """A valid EDID 1.4 base block: identity, a preferred timing, name and serial text descriptors."""
    letters = [ord(letter) - ord("A") + 1 for letter in vendor]
    identity = (letters[0] << 10 | letters[1] << 5 | letters[2]).to_bytes(2, "big")
    identity += product.to_bytes(2, "little") + serial.to_bytes(4, "little") + bytes([1, 30])
    millimetres = (width * 254 // 960, height * 254 // 960)
    basics = bytes([1, 4, 0xA5, millimetres[0] // 10, millimetres[1] // 10, 120, 0x06])
    chromaticity = bytes.fromhex("ee91a3544c99260f5054")
    established = bytes(3) + bytes([1, 1]) * 8
    text = [_text_descriptor(0xFC, name), _text_descriptor(0xFF, f"SN{serial}"), bytes([0, 0, 0, 0x10]) + bytes(14)]
    block = bytes.fromhex("00ffffffffffff00") + identity + basics + chromaticity + established
    block += _timing_descriptor(width, height, millimetres) + b"".join(text) + bytes([0])
    return block + bytes([-sum(block) % 256])


def _timing_descriptor(width: int, height: int, millimetres: tuple[int, int]) -> bytes:
    blank_x, blank_y = 160, 30
    clock = (width + blank_x) * (height + blank_y) * 60 // 10000
    return clock.to_bytes(2, "little") + bytes([
        width & 255, blank_x, width >> 8 << 4, height & 255, blank_y, height >> 8 << 4, 48, 32, 0x35, 0,
        millimetres[0] & 255, millimetres[1] & 255, millimetres[0] >> 8 << 4 | millimetres[1] >> 8, 0, 0, 0x1E])


def _text_descriptor(tag: int, text: str) -> bytes:
    return bytes([0, 0, 0, tag, 0]) + (text.encode() + b"\n").ljust(13)[:13]


@contextmanager
def connection(display_name: str) -> Iterator[tuple[ctypes.CDLL, ctypes.c_void_p]]:
    """libX11 and an open display, for the few things that no command line tool does."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    for function in (x11.XDefaultRootWindow, x11.XInternAtom, x11.XGetSelectionOwner):
        function.restype = ctypes.c_ulong
    display = ctypes.c_void_p(x11.XOpenDisplay(display_name.encode()))
    if not display:
        raise OSError(f"cannot open display {display_name}")
    try:
        yield x11, display
        x11.XSync(display, False)
    finally:
        x11.XCloseDisplay(display)


def selection_owner(display_name: str, selection: str) -> int:
    """The window that owns a selection, 0 when none does."""
    with connection(display_name) as (x11, display):
        return int(x11.XGetSelectionOwner(display, ctypes.c_ulong(x11.XInternAtom(display, selection.encode(), False))))


def keyboard_is_free(display_name: str) -> bool:
    """Whether nobody holds a grab of the keyboard."""
    with connection(display_name) as (x11, display):
        root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
        is_free = x11.XGrabKeyboard(display, root, 0, 1, 1, ctypes.c_ulong(0)) == 0
        x11.XUngrabKeyboard(display, ctypes.c_ulong(0))  # closing would, at some later moment
        return is_free


def set_edids(display_name: str, blobs: Mapping[str, bytes]) -> None:
    """Writes the property EDID of the named outputs, which xrandr can show but not create."""
    randr = ctypes.CDLL("libXrandr.so.2")
    randr.XRRGetScreenResourcesCurrent.restype = ctypes.POINTER(_ScreenResources)
    randr.XRRGetOutputInfo.restype = ctypes.POINTER(_OutputInfo)
    with connection(display_name) as (x11, display):
        resources = randr.XRRGetScreenResourcesCurrent(display, ctypes.c_ulong(x11.XDefaultRootWindow(display)))
        edid = ctypes.c_ulong(x11.XInternAtom(display, b"EDID", False))
        for index in range(resources.contents.noutput):
            output = ctypes.c_ulong(resources.contents.outputs[index])
            name = randr.XRRGetOutputInfo(display, resources, output).contents.name.decode()
            if name in blobs:
                randr.XRRChangeOutputProperty(display, output, edid, ctypes.c_ulong(XA_INTEGER), 8,
                                              PROP_MODE_REPLACE, blobs[name], len(blobs[name]))


class _ScreenResources(ctypes.Structure):
    _fields_ = [("timestamp", ctypes.c_ulong), ("config_timestamp", ctypes.c_ulong),
                ("ncrtc", ctypes.c_int), ("crtcs", ctypes.POINTER(ctypes.c_ulong)),
                ("noutput", ctypes.c_int), ("outputs", ctypes.POINTER(ctypes.c_ulong))]


class _OutputInfo(ctypes.Structure):
    _fields_ = [("timestamp", ctypes.c_ulong), ("crtc", ctypes.c_ulong), ("name", ctypes.c_char_p)]
