#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Debian packages: made, looked through, and a program built from those of the library alone:
packages.py BUILD LOOK PHOTO.ppm

LOOK is the C program of the examples as this build made it."""

import pathlib
import subprocess
import sys
import tempfile

build, look, photo = sys.argv[1:4]


def output(*command, **named):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True, **named).stdout


def field(package, name):
    return output("dpkg-deb", "--field", package, name).strip()


def files(package):
    return {line.split()[5] for line in output("dpkg-deb", "--contents", package).splitlines() if line[0] != "d"}


def check(folder):
    subprocess.run(["cpack", "--config", f"{build}/CPackConfig.cmake", "-B", folder], check=True,
                   stdout=subprocess.DEVNULL)
    packages = {field(path, "Package"): path for path in folder.glob("*.deb")}
    assert sorted(packages) == ["liblumora1", "lumora", "lumora-dev"], packages
    program, library, development = (packages[name] for name in ("lumora", "liblumora1", "lumora-dev"))

    version = field(library, "Version")
    assert field(development, "Depends") == f"liblumora1 (= {version})", field(development, "Depends")
    assert "libc6" in field(library, "Depends") and "qt" not in field(library, "Depends"), field(library, "Depends")
    assert "liblumora1" not in field(program, "Depends"), field(program, "Depends")
    assert output("dpkg-deb", "--info", library, "shlibs") == f"liblumora 1 liblumora1 (>= {version})\n"
    assert "ldconfig" in output("dpkg-deb", "--info", library, "triggers")
    contents = [files(path) for path in packages.values()]
    assert len(set.union(*contents)) == sum(map(len, contents)), "a file is in two packages"
    # A library that is installed alone brings nothing that two versions of it would share.
    assert all("liblumora.so.1" in name or "liblumora1" in name for name in files(library)), files(library)
    for name, path in packages.items():
        assert {f"./usr/share/doc/{name}/copyright", f"./usr/share/doc/{name}/changelog.gz"} <= files(path), name

    root = folder / "root"
    for package in (library, development):
        subprocess.run(["dpkg-deb", "--extract", package, root], check=True)
    (copyright_file,) = root.glob("usr/share/doc/liblumora1/copyright")
    assert "License: LGPL-3+" in copyright_file.read_text()
    (pkgconfig,) = root.rglob("lumora.pc")
    flags = output("pkg-config", "--cflags", "--libs", "lumora", env={"PKG_CONFIG_PATH": pkgconfig.parent,
                                                                      "PATH": "/usr/bin:/bin"}).split()
    example = root / "usr/share/doc/lumora-dev/examples/look.c"
    subprocess.run(["cc", example, "-o", folder / "look", *flags], check=True)
    with open(photo, "rb") as colours:
        expected = subprocess.run([look, "Helga"], stdin=colours, stdout=subprocess.PIPE, check=True).stdout
    libraries = pkgconfig.parent.parent
    with open(photo, "rb") as colours:
        made = subprocess.run([folder / "look", "Helga"], stdin=colours, stdout=subprocess.PIPE, check=True,
                              env={"LD_LIBRARY_PATH": str(libraries)}).stdout
    assert made == expected and len(made) > 100
    loaded = output("ldd", folder / "look", env={"LD_LIBRARY_PATH": str(libraries), "PATH": "/usr/bin:/bin"})
    assert f"liblumora.so.1 => {root}/" in loaded, loaded

    lintian = subprocess.run(["lintian", "--fail-on", "error,warning", "--allow-root", *packages.values()],
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    print(lintian.stdout)
    assert lintian.returncode == 0, "lintian finds errors or warnings"


with tempfile.TemporaryDirectory() as temporary:
    check(pathlib.Path(temporary).resolve())
