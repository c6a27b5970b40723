"""Builds the toolkit's test programs, out of its tree."""

import re
import subprocess
from pathlib import Path

SETTINGS = (
    "CONFIG+=release",
    "CONFIG+=ccache",
    "CONFIG-=warn_on",
    "CONFIG+=warn_off",
    "QMAKE_CXXFLAGS_RELEASE=-O0",
    "QMAKE_LFLAGS+=-Wl,--no-demangle",
    # Programs that need the toolkit's private headers are not left out.
    "QT.global_private.enabled_features=private_tests",
)
UNDEFINED = re.compile(r"undefined references? to `(\w+)'")
ERROR = re.compile(r"error: (.*)")
# Where a program finds its plugins (qt.conf).
CONFIGURATION = """\
[Paths]
Prefix={QT_INSTALL_PREFIX}
Plugins={plugins}
Translations={QT_INSTALL_TRANSLATIONS}
"""


class NotBuilt(Exception):
    """Tells why there is no program."""


class Builder:
    """Builds programs of the toolkit's sources below the folder of work, where they stay."""

    def __init__(self, sources, work):
        self.projects = sources / "tests/auto/widgets"
        self.programs = work / "programs"
        self.configuration = configure_plugins(work / "plugins")

    def build(self, name):
        """Returns the program's path and how many names it lacks: those that the toolkit keeps to
        itself. What needs one fails with any style."""
        folder = self.programs / name
        project = self.projects / name / f"{folder.name}.pro"
        program = folder / f"tst_{folder.name}"
        traps = folder / "traps.s"
        if not program.exists():
            folder.mkdir(parents=True, exist_ok=True)
            (folder / "qt.conf").write_text(self.configuration)
            errors = make(project, folder)
            missing = sorted(set(UNDEFINED.findall(errors)))
            traps.write_text(trap(missing))
            if missing:
                run("cc", "-c", traps.name, folder=folder)
                errors = make(project, folder, "LIBS+=traps.o")
            if not program.exists():
                raise NotBuilt(first_error(errors))
        return program, traps.read_text().count(".globl")


def configure_plugins(folder):
    """Fills the folder with the toolkit's plugins but for styles, so that programs know those alone
    that the toolkit has itself, whatever is installed. Returns what makes a program look there."""
    query = run("qmake", "-query").stdout
    paths = dict(line.split(":", 1) for line in query.splitlines())
    folder.mkdir(parents=True, exist_ok=True)
    for installed in Path(paths["QT_INSTALL_PLUGINS"]).iterdir():
        place = folder / installed.name
        if installed.name != "styles" and not place.exists():
            place.symlink_to(installed)
    return CONFIGURATION.format(plugins=folder, **paths)


def make(project, folder, *settings):
    """Returns what went wrong."""
    configuring = run("qmake", "-nocache", project, *SETTINGS, *settings, folder=folder)
    return configuring.stderr + run("make", "-s", folder=folder).stderr


def run(*command, folder=None):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True)


def trap(names):
    """Returns the source of functions that crash."""
    labels = "".join(f".globl {name}\n{name}:\n" for name in names)
    return f'.text\n{labels}ud2\n.section .note.GNU-stack,"",@progbits\n'


def first_error(errors):
    found = ERROR.search(errors)
    return found[1] if found else (errors.strip() or "no program").splitlines()[-1]
