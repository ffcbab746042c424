#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The packages in a bare Debian: bare_debian.py BUILD ROOT.tar PHOTO

A user has the version that desktops knew by another name, gets this one, keeps the choices, and takes it off again."""

import atexit
import configparser
import contextlib
import glob
import os
import pathlib
import shutil
import subprocess
import sys

sys.path.append(os.path.join(os.path.dirname(os.path.realpath(__file__)), "..", "journey"))
from desk import say, wait_for, xdotool

build, archive, photo = sys.argv[1:]
IDENTITY, FORMER = "com.dovrel.Lumora", "dovrel.lumora"
home = pathlib.Path(os.environ["HOME"])
root = home / "root"
packages = root / "packages"
CONFIG = root / "home/somebody/.config"


def output(*command, **named):
    return subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, check=True, text=True, **named).stdout


def inside(*command, **named):
    environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8"}
    environment |= {name: value for name, value in os.environ.items() if name.endswith("_proxy")}
    return output("chroot", root, *command, env=environment, **named)


def apt(*command):
    # Nobody needs the root after a power cut.
    return inside("apt-get", "-qq", "-o", "Dpkg::Use-Pty=0", "-o", "Dpkg::Options::=--force-unsafe-io", *command)


def make_packages():
    """Of this build, and lumora as it was when desktops knew it by its former name."""
    output("cpack", "--config", f"{build}/CPackConfig.cmake", "-B", home / "made")
    packages.mkdir()
    for path in glob.glob(f"{home}/made/*.deb"):
        shutil.copy(path, packages / (os.path.basename(path).split("_")[0] + ".deb"))
    before = home / "before"
    output("dpkg-deb", "--raw-extract", packages / "lumora.deb", before)
    control = before / "DEBIAN/control"
    version = output("dpkg-deb", "--field", packages / "lumora.deb", "Version").strip()
    control.write_text(control.read_text().replace(f"Version: {version}", "Version: 1.0.0"))
    (before / "DEBIAN/md5sums").unlink()
    entry = before / f"usr/share/applications/{IDENTITY}.desktop"
    entry.write_text(entry.read_text().replace(IDENTITY, FORMER))
    for path in before.rglob(f"{IDENTITY}*"):
        path.rename(path.with_name(path.name.replace(IDENTITY, FORMER)))
    output("dpkg-deb", "--build", "--root-owner-group", before, packages / "former.deb")


def everything():
    """What stands in the root, but for the package manager's own memory and people's files."""
    ours = ("./proc", "./packages", "./home", "./tmp", "./var/lib/apt", "./var/lib/dpkg", "./var/cache", "./var/log")
    return {name for name in output("find", ".", cwd=root).splitlines() if not name.startswith(ours)}


def installed(name):
    return set(inside("dpkg", "-L", name).splitlines())


def names(found):
    """The last parts of what desktops go by."""
    places = ("/usr/share/applications/", "/usr/share/icons/", "/usr/share/metainfo/")
    return {name.rsplit("/", 1)[1] for name in found if name.startswith(places) and "umora" in name}


def preferences():
    file = configparser.ConfigParser(interpolation=None)
    file.optionxform = str
    file.read(CONFIG / "Dovrel/Lumora.conf")
    return file["General"]


@contextlib.contextmanager
def window(*arguments, title):
    """A user's window, until it is closed."""
    user = ["chroot", "--userspec=somebody", str(root), "env", "-i", "HOME=/home/somebody", "PATH=/usr/bin:/bin",
            f"DISPLAY={os.environ['DISPLAY']}", "LC_ALL=C.UTF-8"]
    with subprocess.Popen([*user, "lumora", *arguments], stdout=subprocess.DEVNULL) as process:
        try:
            found = wait_for(f"the window {title!r}", lambda: process.poll() is not None
                             or xdotool("search", "--onlyvisible", "--name", f"^{title}$"))
            assert process.poll() is None, f"the program ended with {process.returncode}"
            yield found
            process.terminate()
            assert process.wait(60) == 0, process.returncode
        finally:
            process.kill()


root.mkdir()
output("tar", "-C", root, "-xf", archive)
os.makedirs(root / "proc", exist_ok=True)
output("mount", "-t", "proc", "proc", root / "proc")
atexit.register(output, "umount", "--lazy", root / "proc")
make_packages()
shutil.copy(photo, packages / "first.jpg")
shutil.copy(photo, packages / "second.jpg")
inside("useradd", "--create-home", "somebody")
apt("update")
before = everything()

say("The former package")
apt("install", "--no-install-recommends", "/packages/former.deb")
former = installed("lumora")
assert names(former) == {f"{FORMER}{end}" for end in (".desktop", ".metainfo.xml", ".png", ".svg")}, names(former)
with window("/packages/first.jpg", title="Lumora - first.jpg"):
    pass
assert [str(path.relative_to(CONFIG)) for path in CONFIG.rglob("*") if path.is_file()] == ["Dovrel/Lumora.conf"]
file = CONFIG / "Dovrel/Lumora.conf"
assert preferences()["UseMultiFilter"] == "false"
file.write_text(file.read_text().replace("UseMultiFilter=false", "UseMultiFilter=true"))

say("The upgrade")
apt("install", "/packages/lumora.deb", "--no-install-recommends")
now = installed("lumora")
assert names(now) == {f"{IDENTITY}{end}" for end in (".desktop", ".metainfo.xml", ".png", ".svg")}, names(now)
left = [name for name in former - now if (root / name.lstrip("/")).is_file()]
assert not left, left
assert inside("lumora", "--version") == f"lumora {output('dpkg-deb', '--field', packages / 'lumora.deb', 'Version').strip()}\n"
with window("file:///packages/second.jpg", title="Lumora - second.jpg") as found:
    assert found in xdotool("search", "--classname", f"^{IDENTITY}$").splitlines(), found
kept = preferences()
assert kept["UseMultiFilter"] == "true", "the choices are found where they were"
assert "second.jpg" in file.read_text(), "and written there"
assert [str(path.relative_to(CONFIG)) for path in CONFIG.rglob("*") if path.is_file()] == ["Dovrel/Lumora.conf"]
inside("lumora-render", "--look", "Helga", "--output", "/tmp/rendered.jpg", "/packages/first.jpg")
assert (root / "tmp/rendered.jpg").stat().st_size > 10000
# What it recommends is there to be had.
wanted = output("dpkg-deb", "--field", packages / "lumora.deb", "Recommends").replace(" ", "").strip().split(",")
simulated = apt("install", "--simulate", *wanted)
assert all(f"Inst {name} " in simulated for name in wanted), (wanted, simulated)

say("The library")
apt("install", "--no-install-recommends", "/packages/liblumora1.deb")
assert "liblumora.so.1 " in inside("ldconfig", "-p")

say("All of it goes")
apt("purge", "--autoremove", "lumora", "liblumora1")
assert "liblumora.so.1 " not in inside("ldconfig", "-p")
left = sorted(everything() - before)
assert not left, left
assert file.exists(), "people's own choices stay theirs"
say("Nothing is left")
