"""A private build tree in which one source of the library can be replaced without linking a test program.

The library's objects become one shared library that every test program, and the tool, loads. A mutant is then one
object compiled and one library linked; the programs find it through LD_LIBRARY_PATH.
"""
import hashlib
import json
import os
import resource
import shlex
import shutil
import signal
import subprocess
import threading
import time

_OBJECTS = "CMakeFiles/ZEBKNCompParmObjects.dir/"
_LIBRARY = "libmutated.so"
_MEMORY = 12 << 30
_STOPPED = "stopped: too slow"


def _limits(seconds):
    def apply():
        resource.setrlimit(resource.RLIMIT_AS, (_MEMORY, _MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
    return apply


class Program:
    """A test program: how ctest starts it, and what it took before any change."""

    def __init__(self, test, without):
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        self.name = test["name"]
        self.path = test["command"][0]
        self.environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        self.seconds = 0.0
        self.cpu = 0.0
        self.tests = 0
        self.left_out = list(without)

    def all_tests(self):
        """As a filter: everything but what is left out."""
        return "*" + ("-" + ":".join(self.left_out) if self.left_out else "")


class Tree:
    def __init__(self, source, build, skipped, without, longest):
        self.source = os.path.abspath(source)
        self.build = os.path.abspath(build)
        self._skipped = skipped
        self._without = without
        self._longest = longest
        self._commands = {}
        self.programs = []

    # --- Before any mutant ------------------------------------------------------------------------------------------

    def prepare(self, jobs):
        """Configures and builds the tree, and links the programs with the shared library."""
        if not os.path.exists(os.path.join(self.build, "build.ninja")):
            launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
            subprocess.run(["cmake", "-S", self.source, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                            "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0", "-DZEB_DISCOVER_TESTS=OFF", "-DZEB_WITH_MPI=OFF", *launcher],
                           check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", self.build, "-j", str(jobs)], check=True, stdout=subprocess.DEVNULL)
        with open(os.path.join(self.build, "compile_commands.json"), encoding="utf-8") as file:
            self._commands = {os.path.normpath(entry["file"]): entry for entry in json.load(file)
                              if _OBJECTS in entry["command"]}
        self._link_library([], os.path.join(self.build, "lib", _LIBRARY))
        for program in self._tests():
            program.path = self._relink(os.path.relpath(program.path, self.build), "mutation_" + program.name)
            self.programs.append(program)
        # The tests of the tool start it by its name, so it is replaced.
        self._relink("bin/compparm", "compparm")

    def _tests(self):
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.build, check=True, capture_output=True)
        for test in json.loads(listed.stdout)["tests"]:
            folder = os.path.join(self.build, "bin") + os.sep
            if test["command"][0].startswith(folder) and test["name"] not in self._skipped:
                yield Program(test, self._without)

    def _objects(self):
        return [self._object_of(entry) for entry in self._commands.values()]

    @staticmethod
    def _object_of(entry):
        words = shlex.split(entry["command"])
        return words[words.index("-o") + 1]

    def _link_library(self, replaced, target):
        """`replaced`: pairs of an object's name and the object in its place."""
        places = dict(replaced)
        objects = [places.get(name, name) for name in self._objects()] + [os.path.join("lib", "libZEBStandalone.so")]
        command = ["c++", "-shared", "-Wl,-soname," + _LIBRARY, "-o", target] + objects
        if shutil.which("ld.lld"):
            command.append("-fuse-ld=lld")
        subprocess.run(command, cwd=self.build, check=True, capture_output=True)

    def _relink(self, program, name):
        listed = subprocess.run(["ninja", "-t", "commands", program], cwd=self.build, check=True, capture_output=True,
                                text=True)
        command = listed.stdout.splitlines()[-1].removeprefix(": && ").removesuffix(" && :")
        words = [word.replace("\\$", "$") for word in shlex.split(command) if not word.startswith(_OBJECTS)]
        target = os.path.join(self.build, "bin", name)
        words[words.index("-o") + 1] = target + ".new"
        # All of it, first and always: the archives behind it need it as well.
        words += ["-Wl,--no-as-needed", os.path.join("lib", _LIBRARY), "-Wl,--allow-shlib-undefined"]
        subprocess.run(words, cwd=self.build, check=True, capture_output=True)
        os.replace(target + ".new", target)
        return target

    def knows(self, source):
        return os.path.join(self.source, source) in self._commands

    # --- One mutant -------------------------------------------------------------------------------------------------

    def compile(self, source, text, folder, name, flags=()):
        """Compiles the text in the place of the source; the object's path, or None where it is no C++."""
        path = os.path.join(self.source, source)
        words = shlex.split(self._commands[path]["command"])
        if os.path.basename(words[0]) == "ccache":
            del words[0]
        changed = os.path.join(folder, os.path.basename(source))
        with open(changed, "w", encoding="utf-8") as file:
            file.write(text)
        result = os.path.join(folder, name)
        words[words.index("-o") + 1] = result
        words[words.index("-c") + 1] = changed
        words += ["-w", "-iquote", os.path.dirname(path), "-frandom-seed=mutant", *flags]
        done = subprocess.run(words, cwd=self._commands[path]["directory"], capture_output=True, check=False)
        return result if done.returncode == 0 else None

    def link(self, source, obj, folder):
        entry = self._commands[os.path.join(self.source, source)]
        self._link_library([(self._object_of(entry), obj)], os.path.join(folder, _LIBRARY))

    def run(self, program, folder, filter_text="*", fail_fast=True, left_out=None):
        """(None or the name of the first failed test, seconds, CPU seconds, number of tests)."""
        environment = dict(os.environ, **program.environment)
        environment.update(LD_LIBRARY_PATH=folder + ":" + os.path.join(self.build, "lib"), TMPDIR=folder)
        cpu_limit = int(3 * program.cpu + 20) if program.cpu else 600
        wall_limit = 10 * program.seconds + 60 if program.seconds else 1200
        command = [program.path, "--gtest_color=no", "--gtest_filter=" + filter_text]
        if fail_fast:
            command.append("--gtest_fail_fast")
        work = os.path.join(folder, "work")
        shutil.rmtree(work, ignore_errors=True)
        os.makedirs(work)
        started = time.monotonic()
        output = os.path.join(folder, "output.txt")
        with open(output, "wb") as out, subprocess.Popen(
                command, cwd=work, env=environment, stdin=subprocess.DEVNULL, stdout=out, stderr=subprocess.STDOUT,
                preexec_fn=_limits(cpu_limit), start_new_session=True) as process:
            stopped = threading.Event()

            def stop():
                stopped.set()
                os.killpg(process.pid, signal.SIGKILL)

            timer = threading.Timer(wall_limit, stop)
            timer.start()
            _, status, usage = os.wait4(process.pid, 0)
            timer.cancel()
            process.returncode = os.waitstatus_to_exitcode(status)
        seconds, cpu = time.monotonic() - started, usage.ru_utime + usage.ru_stime
        with open(output, encoding="utf-8", errors="replace") as file:
            lines = file.read().splitlines()
        passed = sum("[       OK ]" in line for line in lines)
        if left_out is not None:
            left_out += self._unusable(lines, cpu / seconds)
        if process.returncode == 0:
            return None, seconds, cpu, passed
        slow = stopped.is_set() or process.returncode in (-signal.SIGXCPU, -signal.SIGKILL)
        return _STOPPED if slow else self._first_failed(lines, process.returncode), seconds, cpu, passed

    def _unusable(self, lines, share):
        """The tests that fail, or take too long on a core of their own: `share` is what the program had of one."""
        for line in lines:
            if "[  FAILED  ] " in line and line.endswith(" ms)"):
                yield self._first_failed([line], 1)
            if "[       OK ] " in line and line.endswith(" ms)"):
                name, _, milliseconds = line.split("[       OK ] ", 1)[1].removesuffix(" ms)").rpartition(" (")
                if int(milliseconds) / 1000 * share > self._longest:
                    yield name

    @staticmethod
    def _first_failed(lines, code):
        running = ""
        for line in lines:
            if "[ RUN      ] " in line:
                running = line.split("[ RUN      ] ", 1)[1]
            if "[  FAILED  ] " in line:
                return line.split("[  FAILED  ] ", 1)[1].split(" (", 1)[0].split(",", 1)[0]
        return f"{running} (exit {code})"

    def measure(self, folder, jobs):
        """Runs every program once on the unchanged library: what fails even so, or takes too long, is left out."""
        baseline = os.path.join(self.build, "baseline.json")
        with open(os.path.join(self.build, "lib", _LIBRARY), "rb") as file:
            what = repr((self.fingerprint(), self._longest, self._without))
            key = hashlib.blake2b(file.read() + what.encode(), digest_size=12).hexdigest()
        if os.path.exists(baseline):
            with open(baseline, encoding="utf-8") as file:
                known = json.load(file)
            if known["key"] == key:
                for program in self.programs:
                    vars(program).update(known["programs"][program.name])
                return
        waiting = list(self.programs)
        threads = [threading.Thread(target=self._measure_some, args=(waiting, os.path.join(folder, str(job))))
                   for job in range(jobs)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        with open(baseline, "w", encoding="utf-8") as file:
            json.dump({"key": key, "programs": {program.name: vars(program) for program in self.programs}}, file)

    def _measure_some(self, waiting, folder):
        os.makedirs(folder)
        shutil.copy(os.path.join(self.build, "lib", _LIBRARY), folder)
        while waiting:
            program = waiting.pop()
            left_out = []
            failed, program.seconds, program.cpu, program.tests = self.run(
                program, folder, program.all_tests(), fail_fast=False, left_out=left_out)
            if failed is not None and not left_out:
                raise RuntimeError(f"{program.name} fails without any change: {failed}")
            program.left_out += left_out

    def fingerprint(self):
        """Of all tests: what a result is worth depends on them."""
        state = hashlib.blake2b(digest_size=12)
        root = os.path.join(self.source, "tests")
        for folder, folders, names in os.walk(root):
            folders[:] = sorted(set(folders) - {"mutation", "__pycache__"})
            for name in sorted(names):
                path = os.path.join(folder, name)
                with open(path, "rb") as file:
                    state.update(os.path.relpath(path, root).encode() + b"\0" + file.read() + b"\0")
        return state.hexdigest()
