#!/usr/bin/env python3
"""A host of the settings dialog with PyQt6, in whose application object the dialog runs.

    pyqt_host.py FOLDER

FOLDER holds the module and its companion libraries. What comes of each dialog is shown and printed.
"""
import ctypes
import os
import sys

from PyQt6 import sip
from PyQt6.QtWidgets import QApplication, QLabel, QPushButton, QVBoxLayout, QWidget

RECORD_SIZE = 16888  # of KvMvcSettings
WIDTH_AT, HEIGHT_AT = 256 + 24, 256 + 28  # of the base view, 32-bit integers
BASIC_TAB, ADVANCED_TAB, FILE_BUTTONS, LOG_COLOURS = 0x01, 0x02, 0x10, 0x40
HOST_APPLICATION = 0x10000000
ACCEPTED, REJECTED = 1000, 1001
STEREO_HIGH = 2
SUFFIX = ".dll" if os.name == "nt" else ".so"


class HostWindow(QWidget):
    def __init__(self, folder):
        super().__init__(windowTitle="Encoder")
        self.settings = ctypes.create_string_buffer(RECORD_SIZE)
        encoder = ctypes.CDLL(os.path.join(folder, "kv_mvcenc" + SUFFIX))
        encoder.mvcOutVideoDefaults(self.settings, 0, STEREO_HIGH, 0)
        module = ctypes.CDLL(os.path.join(folder, "kv_config_gui_mvc" + SUFFIX))
        self.show_pages = module.showMVCEncoderPages
        self.show_pages.argtypes = [ctypes.c_void_p, ctypes.c_int32, ctypes.c_void_p]
        self.show_pages.restype = ctypes.c_int32

        self.text = QLabel()
        layout = QVBoxLayout(self)
        layout.addWidget(self.text)
        for name, label, action in (("settingsButton", "&Settings", self.edit_settings),
                                    ("quitButton", "&Quit", self.close)):
            button = QPushButton(label, objectName=name)
            button.clicked.connect(action)
            layout.addWidget(button)
        self.tell("settings")

    def edit_settings(self):
        # The address of the C++ object, which has to be of the module's major version of Qt.
        application = sip.unwrapinstance(QApplication.instance())
        result = self.show_pages(
            self.settings,
            BASIC_TAB | ADVANCED_TAB | FILE_BUTTONS | LOG_COLOURS | HOST_APPLICATION,
            application)
        self.tell({ACCEPTED: "accepted", REJECTED: "cancelled"}.get(
            result, "the dialog could not be shown"))

    def tell(self, what):
        width, height = (ctypes.c_int32.from_buffer(self.settings, at).value
                         for at in (WIDTH_AT, HEIGHT_AT))
        self.text.setText(f"{what}: {width} x {height}")
        print(self.text.text(), flush=True)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: pyqt_host.py FOLDER")
    FOLDER = os.path.abspath(sys.argv[1])
    APPLICATION = QApplication(sys.argv[:1])
    # In a host's application object the dialog's translations are looked for where the host says.
    APPLICATION.addLibraryPath(FOLDER)
    WINDOW = HostWindow(FOLDER)
    WINDOW.show()
    sys.exit(APPLICATION.exec())
