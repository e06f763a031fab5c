"""The build backend of the fedeck package (PEP 517), with no dependency.

Machines that build fedeck may have no package index, so nothing here comes
from outside the standard library. The wheel holds the fedeck package and,
when a built libfedeck.so is found, a copy of it, which makes the wheel
specific to this platform. The library is looked for in the config setting
"library" (pip install --config-settings library=PATH), then in the
environment variable FEDECK_LIBRARY, then at ../build/libfedeck.so beside
this directory.
"""

import base64
import hashlib
import io
import os
import re
import sysconfig
import tarfile
import time
import zipfile

HERE = os.path.dirname(os.path.abspath(__file__))
PACKAGE = "fedeck"
LIBRARY_NAME = "libfedeck.so"
# Fixed time stamps keep the archives the same from one build to the next.
ZIP_TIME = (1980, 1, 1, 0, 0, 0)


# Metadata.

def _project_table():
    """The [project] table of pyproject.toml."""
    with open(os.path.join(HERE, "pyproject.toml"), "rb") as stream:
        text = stream.read()
    try:
        import tomllib
    except ImportError:  # Before Python 3.11: the few plain fields we need.
        return _plain_project_fields(text.decode("utf-8"))
    return tomllib.loads(text.decode("utf-8"))["project"]


def _plain_project_fields(text):
    section = re.search(r"^\[project\]\s*$(.*?)(?=^\[|\Z)", text, re.M | re.S).group(1)
    fields = dict(re.findall(r'^([\w-]+)\s*=\s*"([^"]*)"\s*$', section, re.M))
    return fields


def _metadata_text(project):
    lines = [
        "Metadata-Version: 2.1",
        "Name: " + project["name"],
        "Version: " + project["version"],
    ]
    if "description" in project:
        lines.append("Summary: " + project["description"])
    if "requires-python" in project:
        lines.append("Requires-Python: " + project["requires-python"])
    license_text = project.get("license", {}).get("text") if isinstance(
        project.get("license"), dict) else None
    if license_text:
        lines.append("License: " + license_text)
    lines.extend("Classifier: " + classifier for classifier in project.get("classifiers", []))
    for extra, requirements in project.get("optional-dependencies", {}).items():
        lines.append("Provides-Extra: " + extra)
        lines.extend('Requires-Dist: %s ; extra == "%s"' % (requirement, extra)
                     for requirement in requirements)
    return "\n".join(lines) + "\n"


def _wheel_text(tag):
    return ("Wheel-Version: 1.0\nGenerator: fedeck_build\nRoot-Is-Purelib: %s\nTag: %s\n"
            % ("true" if tag.endswith("-any") else "false", tag))


def _distribution_name(project):
    return "%s-%s" % (re.sub(r"[-_.]+", "_", project["name"]).lower(), project["version"])


# Contents.

def _find_library(config_settings):
    """The path of a built libfedeck.so, or None."""
    configured = (config_settings or {}).get("library") or os.environ.get("FEDECK_LIBRARY")
    if configured:
        if not os.path.isfile(configured):
            raise FileNotFoundError("the fedeck library %s does not exist" % configured)
        return configured
    default = os.path.join(HERE, os.pardir, "build", LIBRARY_NAME)
    return default if os.path.isfile(default) else None


def _package_files():
    """The package's own files as (path in the archive, path on disk)."""
    source = os.path.join(HERE, PACKAGE)
    for name in sorted(os.listdir(source)):
        if name.endswith(".py") or name == "py.typed":
            yield PACKAGE + "/" + name, os.path.join(source, name)


def _platform_tag():
    return re.sub(r"[-.]", "_", sysconfig.get_platform())


def _record_line(archive_name, data):
    digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
    return "%s,sha256=%s,%d" % (archive_name, digest, len(data))


class _WheelWriter:
    """A wheel being written: every member is hashed into RECORD."""

    def __init__(self, path, dist_info):
        self.archive = zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED)
        self.dist_info = dist_info
        self.records = []

    def add(self, archive_name, data, mode=0o644):
        info = zipfile.ZipInfo(archive_name, ZIP_TIME)
        info.external_attr = (0o100000 | mode) << 16
        info.compress_type = zipfile.ZIP_DEFLATED
        self.archive.writestr(info, data)
        self.records.append(_record_line(archive_name, data))

    def close(self):
        record_name = self.dist_info + "/RECORD"
        self.records.append(record_name + ",,")
        info = zipfile.ZipInfo(record_name, ZIP_TIME)
        info.external_attr = 0o100644 << 16
        self.archive.writestr(info, "\n".join(self.records) + "\n")
        self.archive.close()


def _read(path):
    with open(path, "rb") as stream:
        return stream.read()


# The hooks.

def get_requires_for_build_wheel(config_settings=None):
    return []


def get_requires_for_build_sdist(config_settings=None):
    return []


def prepare_metadata_for_build_wheel(metadata_directory, config_settings=None):
    project = _project_table()
    dist_info = _distribution_name(project) + ".dist-info"
    target = os.path.join(metadata_directory, dist_info)
    os.makedirs(target, exist_ok=True)
    library = _find_library(config_settings)
    tag = "py3-none-" + (_platform_tag() if library else "any")
    with open(os.path.join(target, "METADATA"), "w", encoding="utf-8") as stream:
        stream.write(_metadata_text(project))
    with open(os.path.join(target, "WHEEL"), "w", encoding="utf-8") as stream:
        stream.write(_wheel_text(tag))
    return dist_info


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    project = _project_table()
    name = _distribution_name(project)
    library = _find_library(config_settings)
    tag = "py3-none-" + (_platform_tag() if library else "any")
    file_name = "%s-%s.whl" % (name, tag)
    wheel = _WheelWriter(os.path.join(wheel_directory, file_name), name + ".dist-info")
    try:
        for archive_name, path in _package_files():
            wheel.add(archive_name, _read(path))
        if library:
            wheel.add(PACKAGE + "/" + LIBRARY_NAME, _read(library), 0o755)
        wheel.add(name + ".dist-info/METADATA", _metadata_text(project).encode("utf-8"))
        wheel.add(name + ".dist-info/WHEEL", _wheel_text(tag).encode("utf-8"))
        wheel.add(name + ".dist-info/top_level.txt", (PACKAGE + "\n").encode("utf-8"))
    finally:
        wheel.close()
    return file_name


def build_sdist(sdist_directory, config_settings=None):
    project = _project_table()
    name = _distribution_name(project)
    file_name = name + ".tar.gz"
    members = [("pyproject.toml", os.path.join(HERE, "pyproject.toml")),
               ("fedeck_build.py", os.path.join(HERE, "fedeck_build.py"))]
    members.extend(_package_files())
    tests = os.path.join(HERE, "tests")
    if os.path.isdir(tests):
        members.extend(("tests/" + entry, os.path.join(tests, entry))
                       for entry in sorted(os.listdir(tests)) if entry.endswith(".py"))
    with tarfile.open(os.path.join(sdist_directory, file_name), "w:gz",
                      format=tarfile.PAX_FORMAT) as archive:
        for archive_name, path in members:
            _add_to_tar(archive, name + "/" + archive_name, _read(path))
        _add_to_tar(archive, name + "/PKG-INFO", _metadata_text(project).encode("utf-8"))
    return file_name


def _add_to_tar(archive, archive_name, data):
    info = tarfile.TarInfo(archive_name)
    info.size = len(data)
    info.mode = 0o644
    info.mtime = int(os.environ.get("SOURCE_DATE_EPOCH", time.time()))
    archive.addfile(info, io.BytesIO(data))
