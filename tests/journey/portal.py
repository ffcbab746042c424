#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The desktop's own panel for opening, through its portal: what is chosen there opens, and Cancel changes nothing."""

import os
import shutil
import sys
import threading
import urllib.parse

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

from desk import press_by_name, wait_for
from lumora import Lumora

build, photo = sys.argv[1:3]
second = os.path.join(os.environ["HOME"], "a second ä 100%.jpg")
shutil.copy(photo, second)
CHOSEN, CANCELLED = 0, 1  # answers of a portal


class Portal(dbus.service.Object):
    """Answers each question for a file at once, as a person would who presses Open or Cancel."""

    interface = "org.freedesktop.portal.FileChooser"

    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.bus, self.answer, self.asked = bus, (CANCELLED, {}), []

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return dbus.UInt32(3)  # its version, which is all that is asked

    @dbus.service.method(interface, in_signature="ssa{sv}", out_signature="o", sender_keyword="sender")
    def OpenFile(self, parent, title, options, sender):
        token = str(options.get("handle_token", "one"))
        path = f"/org/freedesktop/portal/desktop/request/{sender[1:].replace('.', '_')}/{token}"
        request = Request(self.bus, path)
        code, results = self.answer

        def respond():
            request.Response(dbus.UInt32(code), dbus.Dictionary(results, signature="sv"))
            request.remove_from_connection()
        GLib.timeout_add(200, respond)  # which the program must hear of first, as it does of a person
        self.asked.append(str(title))
        return dbus.ObjectPath(path)


class Request(dbus.service.Object):
    @dbus.service.signal("org.freedesktop.portal.Request", signature="ua{sv}")
    def Response(self, code, results):
        pass


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
dbus.mainloop.glib.threads_init()
bus = dbus.SessionBus(private=True)
portal = Portal(bus)
name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
loop = GLib.MainLoop()
threading.Thread(target=loop.run, daemon=True).start()

os.environ["QT_QPA_PLATFORMTHEME"] = "xdgdesktopportal"
with Lumora(build, photo) as lumora:
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))
    press_by_name(lumora.control("Open…"))
    wait_for("the portal to be asked", lambda: len(portal.asked) == 1)
    wait_for("the panel to be over", lambda: lumora.dialog() is None)
    lumora.wait_for_title("Lumora - " + os.path.basename(photo))

    portal.answer = CHOSEN, {"uris": dbus.Array(["file://" + urllib.parse.quote(second)], signature="s")}
    press_by_name(lumora.control("Open…"))
    lumora.wait_for_title("Lumora - " + os.path.basename(second))
    assert len(portal.asked) == 2, portal.asked
    lumora.quit()
