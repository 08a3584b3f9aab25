#!/usr/bin/env python3
"""Runs what a document shows. CONTRIBUTING.md lists the kinds of blocks; a block of no kind fails.

    documents.py BUILD DOCUMENT.md
"""
import contextlib, difflib, json, os, pathlib, re, shlex, shutil, socket, subprocess, sys, tempfile, time

TOP = pathlib.Path(__file__).resolve().parent.parent
BUILD, DOCUMENT = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
PROGRAMS = {"zorsh": BUILD / "tools/zorsh/zorsh", "zor-monitor": BUILD / "monitor/zor-monitor"}
DEVICE = re.compile(r"tcp://[\d.]+(:\d+)?")
TIME = re.compile(r"\d{4}-\d\d-\d\dT[\d:.]+Z")
MARK = "918273645"
failures = 0


def fail(line, text):
    global failures
    failures += 1
    print(f"{DOCUMENT.name}:{line}: {text}")


def blocks(text):
    """Line, language, argument, given context and content of every block; an indented one has no language."""
    given, fence, after_blank = "", None, True
    for number, line in enumerate(text.splitlines(), 1):
        if fence is None and line.startswith("```"):
            language, _, argument = line[3:].strip().partition(" ")
            fence = [number, language, argument.strip(), given, []]
        elif fence is not None and line == "```":
            yield fence
            fence, given = None, ""
        elif fence is not None:
            fence[4].append(line)
        elif found := re.fullmatch(r"<!-- given: (.*) -->", line):
            given = found[1]
        elif line.startswith("    ") and after_blank:
            yield [number, "", "", "", [line]]
        after_blank = fence is None and not line.strip()
    if fence is not None:
        fail(fence[0], "the block does not end")


def compare(line, what, shown, came):
    """Lines shown and lines that came; "..." stands for any number of them, a time for any time."""
    pattern = "".join(r"(?:.*\n)*" if one == "..." else re.escape(TIME.sub("TIME", one.rstrip())) + r"\n" for one in shown)
    if not re.fullmatch(pattern, "".join(TIME.sub("TIME", one.rstrip()) + "\n" for one in came)):
        fail(line, f"{what}\n" + "\n".join(difflib.ndiff(shown, came)))


def told(content, prompt):
    """Commands behind a prompt, each with its place and the lines shown below it."""
    steps = []
    for offset, line in enumerate(content, 1):
        if line.startswith(prompt):
            steps.append((offset, line[len(prompt):], []))
        elif steps:
            steps[-1][2].append(line)
    return steps


def session(line, argument, content, before, scratch):
    """A conversation with zorsh, on every platform; it goes on where the document's last one ended."""
    if argument != "continued":
        before.clear()
    steps = told(content, "zorsh> ")
    known = len(before)
    before.extend(command for _, command, _ in steps)
    for platform in ("headless", "qt"):
        typed = "".join(f"{command}\ncalc {MARK}\n" for command in before)
        came = subprocess.run([PROGRAMS["zorsh"], "--platform", platform], input=typed, text=True, cwd=scratch,
                              capture_output=True, timeout=60).stdout.split(MARK + "\n")
        for (offset, command, shown), output in zip(steps, came[known:]):
            compare(line + offset, f"{platform}: {command}", shown, output.splitlines())


@contextlib.contextmanager
def device(parameters, scratch):
    """The device that a document's command names: simulated from the parameter file of the same command."""
    with socket.socket() as free:
        free.bind(("127.0.0.1", 0))
        port = free.getsockname()[1]
    served = subprocess.Popen([PROGRAMS["zor-monitor"], "--parameters", parameters, "--serve", str(port)], cwd=scratch)
    try:
        for _ in range(100):
            with contextlib.suppress(OSError), socket.create_connection(("127.0.0.1", port)):
                break
            time.sleep(0.1)
        yield f"tcp://127.0.0.1:{port}"
    finally:
        served.terminate()
        served.wait()


def shell(line, content, scratch):
    """Commands and what they print. A window closes by itself after a moment, and a device is simulated."""
    for offset, command, shown in told(content, "$ "):
        command, _, note = command.partition("  # ")
        status = int(found[1]) if (found := re.search(r"status (\d)", note)) else 0
        words = shlex.split(command)
        with contextlib.ExitStack() as stack:
            if words[0] == "zor-monitor" and not re.search("--(run-for|serve|help|version|save-settings|load-settings|compare|report|scan)", command) and status == 0:
                command += " --run-for 2"
                shown = shown or ["..."]
            if DEVICE.search(command):
                parameters = words[words.index("--parameters") + 1]
                command = DEVICE.sub(stack.enter_context(device(parameters, scratch)), command)
            ran = subprocess.run(command, shell=True, text=True, cwd=scratch, stdout=subprocess.PIPE,
                                 stderr=subprocess.STDOUT, timeout=60)
        came = [one for one in ran.stdout.splitlines() if not one.startswith("This plugin does not support")]
        if ran.returncode != status:
            fail(line + offset, "\n".join([f"{command}: ends with status {ran.returncode}", *came]))
        if shown:
            compare(line + offset, command, shown, came)


def project(line, content):
    """What builds the project itself cannot run inside its test: scripts and options must exist."""
    known = "".join(p.read_text() for p in [*TOP.glob("**/CMakeLists.txt"), *TOP.glob("cmake/*")])
    for offset, command in enumerate(content, 1):
        for name in re.findall(r"ZOR_\w+", command):
            if not re.search(rf"\b{name}\b", known):
                fail(line + offset, f"the build does not know {name}")
        script = re.search(r"scripts/[\w-]+", command)
        for option in re.findall(r"--[a-z][\w-]*", command) if script else []:
            if option not in (TOP / script[0]).read_text():
                fail(line + offset, f"{script[0]} does not know {option}")
        if script and not os.access(TOP / script[0], os.X_OK):
            fail(line + offset, f"there is no {script[0]}")


def configure(line, content, scratch):
    """A stranger's project of these lines is configured: the library is installed, its sources lie in extern/."""
    own, folder, prefix = "\n".join(content), scratch / f"project{line}", scratch / "prefix"
    if not prefix.exists():
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
    shutil.copytree(TOP / "examples/tank", folder)
    (folder / "extern").mkdir()
    (folder / "extern/ZorSmartControls").symlink_to(TOP)
    head = ["cmake_minimum_required(VERSION 3.25)", "project(stranger LANGUAGES CXX)"]
    if "add_executable" not in own:
        head.append("add_executable(program uic.cpp)")
    if not re.search("find_package|FetchContent", own):
        head.append("find_package(ZorSmartControls 1.0 CONFIG REQUIRED COMPONENTS Widgets)")
    (folder / "CMakeLists.txt").write_text("\n".join([*head, own, ""]))
    ran = subprocess.run(["cmake", "-S", folder, "-B", folder / "build", "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}"],
                         text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if ran.returncode != 0:
        fail(line, ran.stdout)


def fragments(found):
    """C++ that is no quotation compiles in the context given: as the body of a function behind its declarations."""
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    uic = next(c for c in commands if "/example_tank_uic.dir/" in c["command"])
    # Of the QWidgets it is said that one header is enough.
    more = [] if "qt-widgets" in str(DOCUMENT) else ["zor/qt.h", "zor/pages.h", "ui_tank.h"]
    source = [f"#include <{header}>" for header in ("zor/widgets.h", *more, "QtWidgets")]
    source += [one for _, _, content in found for one in content if one.startswith("#include")]
    for line, given, content in found:
        source += [f"namespace block_{line} {{", (given or "void shown()") + " {", f'#line {line + 1} "{DOCUMENT}"',
                   *("" if one.startswith("#include") else one for one in content), "}", "}"]
    words = [w for w in shlex.split(uic["command"])[:-4] if w not in ("-o", "-c")]
    ran = subprocess.run([*words, "-fsyntax-only", "-Wno-unused", "-x", "c++", "-"], input="\n".join(source) + "\n",
                         text=True, cwd=uic["directory"], stderr=subprocess.PIPE)
    if ran.returncode != 0:
        fail(found[0][0], ran.stderr)


def quotation(line, name, content):
    """What is quoted stands in the file, blanks aside."""
    squeeze = lambda text: " ".join(text.split())
    if squeeze("\n".join(content)) not in squeeze((TOP / name).read_text()):
        fail(line, f"does not stand in {name}")


def main():
    with tempfile.TemporaryDirectory() as folder:
        scratch = pathlib.Path(folder)
        shutil.copytree(TOP / "examples", scratch / "examples")
        shutil.copytree(TOP / "examples/flow", scratch, dirs_exist_ok=True)
        scratch.chmod(0o700)
        os.environ["PATH"] = os.pathsep.join([*{str(p.parent) for p in PROGRAMS.values()}, str(BUILD / "examples"), os.environ["PATH"]])
        os.environ.update(QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=folder, LANG="C.UTF-8")
        before, compiled, runs = [], [], 0
        for line, language, argument, given, content in blocks(DOCUMENT.read_text()):
            # What is quoted from these two is compiled, and run by a test of its own.
            runs += (language in ("zorsh", "cmake", "typed") or (language in ("sh", "cpp") and not argument)
                     or argument.startswith(("examples/", "tests/")))
            if language == "zorsh":
                session(line, argument, content, before, scratch)
            elif language == "cmake":
                configure(line, content, scratch)
            elif (language, argument) == ("sh", "project"):
                project(line, content)
            elif language == "sh":
                shell(line, content, scratch)
            elif language == "tree":
                for offset, path in enumerate(content, 1):
                    if not (TOP / path.split()[0]).exists():
                        fail(line + offset, f"there is no {path.split()[0]}")
            elif language == "typed":
                typed = subprocess.run([BUILD / "tests/zor_hello_typed"], text=True, stdout=subprocess.PIPE, timeout=60)
                compare(line, "the program typed into", content, typed.stdout.splitlines())
            elif language and (TOP / argument).is_file():
                quotation(line, argument, content)
            elif language == "json" and argument:
                (scratch / argument).write_text("\n".join(content) + "\n")
            elif language == "cpp" and not argument:
                compiled.append((line, given, content))
            else:
                fail(line, f"no rule for a block of \"{language} {argument}\"")
        if compiled:
            fragments(compiled)
        if DOCUMENT.parent == TOP / "docs" and runs == 0:
            fail(1, "a guide of which nothing is run")
    sys.exit(failures != 0)


main()
