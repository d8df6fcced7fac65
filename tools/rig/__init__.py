# SPDX-License-Identifier: MIT
"""A private X desktop for tests: real server, real window manager, real applications.

Everything the rig reads about windows comes from xwininfo, xprop, wmctrl, xrandr and xdotool,
so it is an independent witness of what Rook did. Coordinates are those of the X root window.
"""
