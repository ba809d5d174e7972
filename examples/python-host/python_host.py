#!/usr/bin/env python3
"""A host of the settings dialog in Python, by ctypes alone.

    python_host.py FOLDER

FOLDER holds the module and its companion libraries. The dialog opens on the encoder's defaults; what
comes of it is printed. Exit status: 0 accepted, 1 cancelled, 2 error.
"""
import ctypes
import os
import sys


class View(ctypes.Structure):
    """The beginning of KvMvcViewSettings; settings_record.h has the rest."""

    _pack_ = 4
    _fields_ = [
        ("profile", ctypes.c_int32),
        ("level", ctypes.c_int32),
        ("i_interval", ctypes.c_int32),
        ("ref_distance", ctypes.c_int32),
        ("reserved_16", ctypes.c_uint8 * 4),
        ("interlace_mode", ctypes.c_int32),
        ("width", ctypes.c_int32),
        ("height", ctypes.c_int32),
        ("frame_rate", ctypes.c_double),
        ("more", ctypes.c_uint8 * (8316 - 40)),
    ]


class Settings(ctypes.Structure):
    """KvMvcSettings."""

    _pack_ = 4
    _fields_ = [
        ("num_views", ctypes.c_int32),
        ("split_views", ctypes.c_int32),
        ("reserved_8", ctypes.c_uint8 * 248),
        ("views", View * 2),
    ]


assert ctypes.sizeof(Settings) == 16888

BASIC_TAB, ADVANCED_TAB, FILE_BUTTONS, LOG_COLOURS = 0x01, 0x02, 0x10, 0x40
ACCEPTED, REJECTED = 1000, 1001
STEREO_HIGH = 2
SUFFIX = ".dll" if os.name == "nt" else ".so"


def open_first(folder, *names):
    """The first of the libraries that is there; what the dialog loads is named and found likewise."""
    for name in names:
        file = os.path.join(folder, name + SUFFIX)
        if os.path.exists(file):
            return ctypes.CDLL(file)
    raise OSError(f"no {' or '.join(names)} in {folder}")


def main(folder):
    folder = os.path.abspath(folder)
    settings = Settings()
    encoder = open_first(folder, "kv_mvcenc_b", "kv_mvcenc")
    encoder.mvcOutVideoDefaults(ctypes.byref(settings), 0, STEREO_HIGH, 0)
    show_pages = open_first(folder, "kv_config_gui_mvc").showMVCEncoderPages
    show_pages.argtypes = [ctypes.POINTER(Settings), ctypes.c_int32, ctypes.c_void_p]
    show_pages.restype = ctypes.c_int32

    result = show_pages(settings, BASIC_TAB | ADVANCED_TAB | FILE_BUTTONS | LOG_COLOURS, None)
    if result not in (ACCEPTED, REJECTED):
        sys.exit("python_host.py: the dialog could not be shown; KV_CONFIG_GUI_TRACE=1 tells why")
    view = settings.views[0]
    print(f"{'accepted' if result == ACCEPTED else 'cancelled'}: "
          f"{view.width} x {view.height}, {view.frame_rate:.3f} frames/s")
    return 0 if result == ACCEPTED else 1


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: python_host.py FOLDER")
    sys.exit(main(sys.argv[1]))
