"""What the lane asks of the files that it has built; every finding is a line."""

import plistlib
import re

from images import CLASS

DEPLOYMENT_TARGETS = {"x86_64": "10.13", "arm64": "11.0"}
SPARKLE = "@rpath/Sparkle.framework/Versions/A/Sparkle"
FRAMEWORK_CLASSES = ("SUStandardVersionComparator", "SUUpdater")
INSTALL_NAMES = {
    "libPelnarUpdateChecker": "@rpath/libPelnarUpdateChecker.1.dylib",
    "libPelnarHostFramework": "@rpath/libPelnarHostFramework.1.dylib",
}


def stem(image):
    return image.path.name.split(".")[0]


def check_image(image, architecture):
    """What holds for every file, no matter what it is for."""
    if image.architecture != architecture:
        yield f"is built for {image.architecture}, not for {architecture}"
    if image.minimum_system != DEPLOYMENT_TARGETS[architecture]:
        yield f"is built for systems from {image.minimum_system} on, not from {DEPLOYMENT_TARGETS[architecture]} on"
    expected = INSTALL_NAMES.get(stem(image), "")
    if image.install_name != expected:
        yield f"has the install name '{image.install_name}', not '{expected}'"
    for path in image.search_paths:
        if "$ORIGIN" in path or "@" not in path and not path.startswith("/"):
            yield f"searches libraries in '{path}', which means nothing to macOS"
    for name in image.libraries:
        if not name.startswith(("@rpath/", "/usr/lib/", "/System/Library/Frameworks/")) or ".so" in name:
            yield f"loads '{name}', which no Mac has"
    for symbol, library in image.undefined.items():
        if not library:
            yield f"leaves {symbol} to chance: no library is said to have it"


def check_framework(image):
    """The library, and nobody else, is bound to the framework."""
    is_bound = SPARKLE in image.libraries
    if stem(image) != "libPelnarUpdateChecker":
        if is_bound:
            yield "loads the update framework; only the update checker's library may"
        return
    if not is_bound:
        yield "does not load the update framework"
    for name in FRAMEWORK_CLASSES:
        if image.undefined.get(CLASS + name) != "Sparkle":
            yield f"does not get the class {name} from the update framework"


def check_linux_symbols(names, linux_names, apple_names):
    """names, linux_names and apple_names are symbols as Apple's linker writes them."""
    for name in sorted((set(names) & set(linux_names)) - set(apple_names)):
        yield f"{name} is of Linux"


def images_of_process(image, by_install_name):
    """The file and the libraries of ours that it loads, directly or not."""
    found, waiting = [], [image]
    while waiting:
        current = waiting.pop()
        if current not in found:
            found.append(current)
            waiting += [by_install_name[name] for name in current.libraries if name in by_install_name]
    return found


def check_classes(image, by_install_name, framework_classes):
    """No class stands twice in the process that the file starts."""
    holders = {}
    members = images_of_process(image, by_install_name)
    for member in members:
        for name in member.classes:
            holders.setdefault(name, []).append(member.path.name)
    if any(SPARKLE in member.libraries for member in members):
        for name in framework_classes:
            holders.setdefault(name, []).append("Sparkle")
    for name, files in sorted(holders.items()):
        if len(files) > 1:
            yield f"gets the class {name} {len(files)} times: from {', '.join(sorted(files))}"


def check_bundle(bundle, program, libraries):
    """A bundle that is put together: program and libraries are its images as they are installed."""
    try:
        with open(bundle / "Contents/Info.plist", "rb") as file:
            information = plistlib.load(file)
    except (OSError, plistlib.InvalidFileException) as error:
        yield f"has no information file that can be read: {error}"
        return
    for key in ("CFBundleIdentifier", "CFBundleName", "CFBundleVersion", "CFBundleShortVersionString"):
        if not information.get(key):
            yield f"does not say its {key}"
    if information.get("CFBundleExecutable") != program.path.name:
        yield f"names the executable '{information.get('CFBundleExecutable')}', not '{program.path.name}'"
    if not re.fullmatch(r"\d+(\.\d+){0,3}", str(information.get("CFBundleVersion"))):
        yield f"has the version '{information.get('CFBundleVersion')}', which is none"
    if program.search_paths != ["@loader_path/../Frameworks"]:
        yield f"lets its program search libraries in {program.search_paths}"
    for library in libraries:
        if library.search_paths != ["@loader_path"]:
            yield f"lets {library.path.name} search libraries in {library.search_paths}"
    inside = {"@rpath/" + path.relative_to(bundle / "Contents/Frameworks").as_posix()
              for path in (bundle / "Contents/Frameworks").rglob("*")}
    for name in sorted({name for image in [program, *libraries] for name in image.libraries}):
        if re.match(r"@rpath/(libPelnar|Sparkle)", name) and name not in inside:
            # The framework's stub stands for the file in Versions/A.
            if name != SPARKLE or "@rpath/Sparkle.framework" not in inside:
                yield f"does not hold {name}"
