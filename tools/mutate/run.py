#!/usr/bin/python3
"""A mutation run over folders of src/: tools/mutate.sh FOLDER...

Every mutant of a folder is compiled into one program beside the code as it is, and chosen by the number in
ZX_MUTANT. Each test is run once to see which mutants it comes by; then each mutant runs with these tests until
one fails. Results are kept in build/mutate/<folder>.json: a second run repeats only the mutants that were
alive or are new. The survivors are written to build/mutate/<folder>.txt. tests/mutate/equivalent.txt names
those that change nothing; they count as alive, and an entry that names no living mutant fails the run.
"""
import argparse
import concurrent.futures
import hashlib
import json
import os
import re
import resource
import shutil
import subprocess
import sys
import threading
import time

from places import Finder
from rewrite import Rewriter

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
WORK = os.path.join(ROOT, "build", "mutate")
BIN = os.path.join(WORK, "bin")

# The test programs that are asked about a folder, its own first.
PROGRAMS = {
    "text": ["text", "store", "widgets", "framework", "contract"],
    "contract": ["contract", "entry", "analysis", "traceops", "dialogs"],
    "entry": ["entry", "traceops", "dialogs"],
    "analysis": ["analysis", "traceops", "dialogs", "entry"],
    "traceops": ["traceops", "dialogs", "entry"],
    "framework": ["framework", "widgets", "analysis"],
    "store": ["store", "store_native", "contract"],
    "widgets": ["widgets", "framework"],
    "parser": ["parser"],
    "fit": ["fit"],
    "sigproc": ["sigproc", "dialogs"],
    "arithmetic": ["arithmetic", "dialogs"],
    "measure": ["measure", "dialogs"],
}
# Where the numbers of a folder begin, so that those of one do not move with another's code.
NUMBERS = {folder: 1 + 10000 * i for i, folder in enumerate(PROGRAMS)}
FIRST = 3  # seconds that a mutant gets beyond five times what its tests take
QUICK = 0.03  # seconds of a test that is worth running before the others
BATCH = 400  # tests of one process, so that a mutant that dies late costs little


class Mutant:
    def __init__(self, number, places, finder, ordinal):
        self.number, self.places = number, places
        first = min(places, key=lambda p: p.start)
        text = finder.source(first.file)
        self.file = os.path.relpath(first.file, os.path.join(ROOT, "src"))
        self.first_line = text.count("\n", 0, first.start) + 1
        self.last_line = text.count("\n", 0, max(p.end for p in places)) + 1
        self.what = first.what
        begin = text.rfind("\n", 0, first.start) + 1
        self.line_text = re.sub(r"\s+", " ", text[begin:text.find("\n", begin)]).strip()
        self.column = first.start - begin + 1
        name = "|".join((self.file, self.line_text, self.what, str(ordinal)))
        self.key = hashlib.sha1(name.encode()).hexdigest()[:16]


def find_mutants(finder, first_number):
    groups, alone = {}, []
    for place in finder.places.values():
        if place.group:
            groups.setdefault(place.group, []).append(place)
        else:
            alone.append([place])
    # A condition that is one comparison or one "!" is negated once, not twice.
    negated = {(p[0].file, p[0].start, p[0].end) for p in alone if p[0].kind == "negate"}
    def twice(place):
        what = place.what
        return (place.file, place.start, place.end) in negated and what.endswith(("-> !=", "-> ==", "without `!`"))
    all_places = [p for p in alone if not twice(p[0])] + [g for g in groups.values() if len(g) == 2]
    all_places.sort(key=lambda g: (g[0].file, min(p.start for p in g), g[0].what))
    mutants, seen = [], {}
    for number, places in enumerate(all_places, first_number):
        probe = Mutant(number, places, finder, 0)
        ordinal = seen[probe.key] = seen.get(probe.key, -1) + 1
        mutants.append(Mutant(number, places, finder, ordinal))
    return mutants


class Build:
    """The changed copies of the folder and the programs made of them."""

    def __init__(self, folder, finder, mutants):
        self.folder, self.finder, self.mutants = folder, finder, mutants
        self.kept = set(finder.fixed)  # names that stay constexpr
        self.left_out = {}  # number -> why
        self.out = os.path.join(WORK, "src", folder)

    def live(self):
        return [m for m in self.mutants if m.number not in self.left_out]

    def write(self):
        for constant in self.finder.constants.values():
            if constant.variable and constant.name in self.kept:
                file, start, end = constant.span
                for m in self.live():
                    if all(p.file == file and start <= p.start and p.end <= end for p in m.places):
                        self.left_out[m.number] = "known at compile time"
        live = self.live()
        Rewriter(self.finder, [m.places for m in live], [m.number for m in live], self.kept).write(self.out)

    def is_own(self, path):
        """Whether a path of the compiler's messages is one of the changed copies; it may start at the build folder."""
        return os.path.normpath(os.path.join(WORK, "build", path)).startswith(self.out + os.sep)

    def learn(self, messages):
        """Takes out what the compiler refused; returns whether there was something to take out."""
        learned = False
        names = {c.name for c in self.finder.constants.values()} - self.kept
        refused = set()
        for match in re.finditer(r"^(\S+?):(\d+):\d+: (?:error|note): (.*)\n(.*)\n", messages + "\n\n", re.M):
            path, line, said = match.group(1), int(match.group(2)), match.group(3)
            constant = re.search(r"constant|constexpr", said)
            # The name stands in the message or in the line of code below it.
            named = names & set(re.findall(r"\w+", said + match.group(4))) if constant else set()
            if named:
                self.kept |= named
                learned = True
            elif ": error:" in match.group(0) and self.is_own(path):
                refused.add((os.path.join(self.folder, os.path.basename(path)), line))
        # What goes wrong in a header of the compiler was asked for by the line that it names before.
        asked = None
        for match in re.finditer(r"^(\S+?):(\d+):\d+:\s+(required from here$|error:)", messages, re.M):
            if match.group(3) != "error:":
                asked = (match.group(1), int(match.group(2)))
            elif match.group(1).startswith("/usr/") and asked and self.is_own(asked[0]):
                refused.add((os.path.join(self.folder, os.path.basename(asked[0])), asked[1]))
        if learned:
            return True
        for m in self.live():
            if any(m.file == f and m.first_line <= n <= m.last_line for f, n in refused):
                self.left_out[m.number] = "does not compile"
                learned = True
        return learned

    def stamp(self):
        """What the outcome of a check depends on."""
        tools = os.path.dirname(os.path.abspath(__file__))
        paths = [os.path.join(tools, n) for n in ("places.py", "rewrite.py")]
        paths += [os.path.join(self.finder.top, n) for n in sorted(os.listdir(self.finder.top))
                  if n.endswith((".h", ".cpp"))]
        digest = hashlib.sha1()
        for path in paths:
            with open(path, "rb") as file:
                digest.update(path.encode() + file.read())
        return digest.hexdigest()

    def remember(self):
        with open(os.path.join(WORK, self.folder + ".places"), "w") as out:
            json.dump({"stamp": self.stamp(), "kept": sorted(self.kept),
                       "left_out": sorted(self.left_out.items())}, out)

    def remembered(self):
        path = os.path.join(WORK, self.folder + ".places")
        if not os.path.exists(path):
            return False
        with open(path) as file:
            known = json.load(file)
        if known["stamp"] != self.stamp():
            return False
        self.kept, self.left_out = set(known["kept"]), dict(known["left_out"])
        self.write()
        return True

    def check(self, jobs):
        """Compiles each file of the folder alone until the compiler takes all of them."""
        names = sorted(n for n in os.listdir(self.finder.top) if n.endswith((".cpp", ".h")))
        def compile_one(name):
            command = ["nice", "-n", "10", "g++", "-std=c++20", "-fsyntax-only", "-w", "-Wno-narrowing",
                       "-fpermissive", "-fmax-errors=0", "-xc++", "-include",
                       os.path.join(ROOT, "tools/mutate/Mutation.h"), "-I" + os.path.join(WORK, "src"),
                       "-I" + ROOT + "/src", "-I" + ROOT + "/include", "-I" + ROOT + "/resources",
                       os.path.join(self.out, name)]
            done = subprocess.run(command, capture_output=True, text=True, env=dict(os.environ, LC_ALL="C"))
            return "" if done.returncode == 0 else done.stderr
        if self.remembered():
            return
        pending = names
        for _ in range(40):
            self.write()
            with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
                said = dict(zip(pending, pool.map(compile_one, pending)))
            wrong = [n for n in pending if said[n]]
            if not wrong:
                if pending == names:
                    self.remember()
                    return
                pending = names
                continue
            if not self.learn("\n".join(said.values())):
                raise SystemExit("mutate: cannot compile:\n" + "\n".join(said[n] for n in wrong)[:3000])
            pending = wrong
        raise SystemExit("mutate: the compiler still refuses mutants after 40 rounds")


def make(builds, programs, jobs):
    """Builds the programs over all the changed folders."""
    targets = ["zx_%s_tests" % p for p in programs]
    for _ in range(20):
        run(["cmake", "--preset", "mutate", "-B", WORK + "/build", "-DZX_MUTATED=" + WORK + "/src"])
        done = subprocess.run(["nice", "-n", "10", "cmake", "--build", WORK + "/build", "-j", str(jobs), "-t"]
                              + targets + ["--", "-k", "0"], capture_output=True, text=True, cwd=ROOT,
                              env=dict(os.environ, LC_ALL="C"))
        if done.returncode == 0:
            for build in builds:
                build.remember()
            return
        # Each build looks for what is its own in the messages.
        learned = [build.learn(done.stdout) for build in builds]
        if not any(learned):
            raise SystemExit("mutate: cannot build:\n" + done.stdout[-4000:])
        for build in builds:
            build.write()
    raise SystemExit("mutate: cannot build")


def run(command):
    done = subprocess.run(command, capture_output=True, text=True, cwd=ROOT)
    if done.returncode != 0:
        raise SystemExit("mutate: %s\n%s%s" % (" ".join(command), done.stdout[-3000:], done.stderr[-3000:]))
    return done.stdout


def limits():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def program_path(program):
    return os.path.join(WORK, "build", "bin", "zx_%s_tests" % program)


class Reach:
    """Which tests come by which mutant, and how long each test takes."""

    def __init__(self, programs):
        self.tests = {}  # mutant -> [(program, test)]
        self.always = {p: set() for p in programs}
        self.seconds = {}
        self.all = {p: [] for p in programs}
        for program in programs:
            path = os.path.join(WORK, program + ".reach")
            if not os.path.exists(path) or os.path.getmtime(path) < os.path.getmtime(program_path(program)):
                self.record(program, path)
            with open(path) as lines:
                for line in lines:
                    words = line.split()
                    if words[0] == ".":
                        self.always[program] = {int(w) for w in words[2:]}
                        continue
                    test = (program, words[0])
                    self.all[program].append(test)
                    self.seconds[test] = int(words[1]) / 1000
                    for number in words[2:]:
                        self.tests.setdefault(int(number), []).append(test)

    @staticmethod
    def record(program, path):
        done = subprocess.run(["nice", "-n", "10", program_path(program), "--gtest_brief=1"], capture_output=True,
                              text=True, env=dict(os.environ, ZX_MUTANT_REACH=path + ".new"), cwd=WORK,
                              errors="replace")
        if done.returncode != 0:
            raise SystemExit("mutate: %s fails without a mutant:\n%s" % (program, done.stdout[-3000:]))
        os.replace(path + ".new", path)

    def of(self, number, programs):
        found = list(self.tests.get(number, []))
        found = [t for t in found if t[0] in programs]
        for program in programs:
            if number in self.always[program]:
                reached = set(found)
                found += [t for t in self.all[program] if t not in reached]
        order = {p: i for i, p in enumerate(programs)}
        return sorted(found, key=lambda t: order[t[0]])


class Runner:
    def __init__(self, reach, programs):
        self.reach, self.programs = reach, programs
        self.killers = []  # tests that killed lately: neighbours often die by the same one
        self.lock = threading.Lock()

    def run_tests(self, mutant, program, tests, worker):
        seconds = sum(self.reach.seconds[t] for t in tests)
        flags = os.path.join(WORK, "filter-%s" % worker)
        with open(flags, "w") as file:
            file.write("--gtest_filter=%s\n" % ":".join(t[1] for t in tests))
        command = ["nice", "-n", "10", program_path(program), "--gtest_flagfile=" + flags, "--gtest_brief=1",
                   "--gtest_fail_fast"]
        try:
            done = subprocess.run(command, capture_output=True, text=True, cwd=WORK, preexec_fn=limits,
                                  timeout=FIRST + 5 * seconds, errors="replace",
                                  env=dict(os.environ, ZX_MUTANT=str(mutant.number)))
        except subprocess.TimeoutExpired:
            return "time"
        if done.returncode == 0:
            return None
        failed = re.search(r"\[  FAILED  \] (\S+?),? ", done.stdout)
        return failed.group(1) if failed else "crash %d" % done.returncode

    def judge(self, mutant):
        worker = threading.get_ident()
        tests = self.reach.of(mutant.number, self.programs)
        if not tests:
            return "unreached", None
        count = len(tests)
        with self.lock:
            reached = set(tests)
            recent = {t for t in self.killers if t in reached and self.reach.seconds[t] < QUICK}
        # The killers of the neighbours, then what is quick, then the rest.
        batches = []
        for pick in (lambda t: t in recent, lambda t: self.reach.seconds[t] < QUICK, lambda t: True):
            for program in self.programs:
                chosen = [t for t in tests if t[0] == program and pick(t)]
                batches += [(program, chosen[i:i + BATCH]) for i in range(0, len(chosen), BATCH)]
            tests = [t for t in tests if not pick(t)]
        for program, batch in batches:
            killer = self.run_tests(mutant, program, batch, worker)
            if killer:
                known = (program, killer)
                if known in self.reach.seconds:
                    with self.lock:
                        self.killers = [known] + [t for t in self.killers if t != known][:8]
                return "killed", program + ": " + killer
        return "alive", "%d tests pass" % count


def read_equivalents():
    """Lines "folder/File | source line | change | reason"."""
    path = os.path.join(ROOT, "tests", "mutate", "equivalent.txt")
    found = {}
    if os.path.exists(path):
        for line in open(path):
            if line.strip() and not line.startswith("#"):
                file, text, what, reason = (part.strip() for part in line.split(" | ", 3))
                found[(file, text, what)] = reason
    return found


def report(folder, mutants, left_out, results, seconds):
    equivalents = read_equivalents()
    live = [m for m in mutants if m.number not in left_out]
    counted = [m for m in live if m.key in results]
    killed = [m for m in counted if results[m.key]["state"] == "killed"]
    alive = [m for m in counted if results[m.key]["state"] != "killed"]
    named = [m for m in alive if (m.file, m.line_text, m.what) in equivalents]
    def share(part):
        return 100.0 * len(part) / max(1, len(counted))
    summary = "%s: %d mutants, %d killed (%.1f %%), %d alive, of these %d named equivalent (%.1f %%); %d left out " \
              "(%d known at compile time, %d do not compile); %d s" % (
                  folder, len(counted), len(killed), share(killed), len(alive), len(named), share(named),
                  len(left_out), sum(1 for w in left_out.values() if w == "known at compile time"),
                  sum(1 for w in left_out.values() if w == "does not compile"), seconds)
    if len(counted) < len(live):
        summary += "; a sample: %d of %d" % (len(counted), len(live))
    with open(os.path.join(WORK, folder + ".txt"), "w") as out:
        out.write(summary + "\n\n")
        for m in alive:
            reason = equivalents.get((m.file, m.line_text, m.what))
            state = "equivalent: " + reason if reason else results[m.key]["detail"] or "no test comes by"
            out.write("%s:%d:%d: %s (%s)\n    %s\n" % (m.file, m.first_line, m.column, m.what, state, m.line_text))
        for m in mutants:
            if m.number in left_out:
                out.write("%s:%d: left out: %s (%s)\n" % (m.file, m.first_line, m.what, left_out[m.number]))
    print(summary, flush=True)
    # An entry must name a mutant that there is and that lives, or it hides nothing but a change of the code.
    there = {(m.file, m.line_text, m.what) for m in mutants}
    dead = {(m.file, m.line_text, m.what) for m in killed} - {(m.file, m.line_text, m.what) for m in alive}
    wrong = [key for key in equivalents if key[0].startswith(folder + "/") and (key not in there or key in dead)]
    for key in wrong:
        print("mutate: equivalent.txt names what %s: %s" % ("is killed" if key in dead else "is not there",
                                                            " | ".join(key)), flush=True)
    return not wrong


def prepare_folder(folder, jobs):
    finder = Finder(ROOT, folder).run()
    build = Build(folder, finder, find_mutants(finder, NUMBERS[folder]))
    build.check(jobs)
    print("%s: %d places" % (folder, len(build.mutants)), flush=True)
    return build


def run_folder(build, reach, programs, jobs, fresh, every):
    started = time.time()
    folder, mutants = build.folder, build.mutants
    path = os.path.join(WORK, folder + ".json")
    results = {}
    if os.path.exists(path) and not fresh:
        results = json.load(open(path))
    results = {m.key: results[m.key] for m in mutants if results.get(m.key, {}).get("state") == "killed"}
    runner = Runner(reach, programs)
    left = [m for m in build.live()[::every] if m.key not in results]
    print("%s: %d mutants to run" % (folder, len(left)), flush=True)
    saved = time.time()

    def save():
        with open(path + ".new", "w") as out:
            json.dump(results, out, indent=1)
        os.replace(path + ".new", path)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for mutant, (state, detail) in zip(left, pool.map(runner.judge, left)):
            results[mutant.key] = {"file": mutant.file, "line": mutant.first_line, "change": mutant.what,
                                   "state": state, "detail": detail}
            if time.time() - saved > 10:
                save()
                saved = time.time()
    save()
    sample = {m.key for m in build.live()[::every]}
    asked = {key: result for key, result in results.items() if key in sample}
    return report(folder, mutants, build.left_out, asked, time.time() - started)


def main():
    parser = argparse.ArgumentParser(description="mutation run over folders of src/")
    parser.add_argument("folders", nargs="*", default=["text", "contract", "entry", "analysis", "traceops"])
    parser.add_argument("--fresh", action="store_true", help="run the mutants that were killed as well")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--every", type=int, default=1, help="a sample: every n-th mutant")
    parser.add_argument("--programs", help="only these test programs, as in text,store")
    options = parser.parse_args()
    for folder in options.folders:
        if folder not in PROGRAMS:
            raise SystemExit("mutate: unknown folder '%s'" % folder)
    source = os.path.join(WORK, "src")
    os.makedirs(source, exist_ok=True)
    for other in os.listdir(source):
        if other not in options.folders:
            shutil.rmtree(os.path.join(source, other))
    asked = options.programs.split(",") if options.programs else None
    programs = {folder: [p for p in PROGRAMS[folder] if os.path.isdir(os.path.join(ROOT, "tests", p))
                         and (asked is None or p in asked)] for folder in options.folders}
    started = time.time()
    builds = [prepare_folder(folder, options.jobs) for folder in options.folders]
    every = sorted({p for names in programs.values() for p in names})
    make(builds, every, options.jobs)
    print("built after %d s" % (time.time() - started), flush=True)
    reach = Reach(every)
    print("reach recorded after %d s" % (time.time() - started), flush=True)
    right = [run_folder(build, reach, programs[build.folder], options.jobs, options.fresh, options.every)
             for build in builds]
    if not all(right):
        raise SystemExit(1)


main()
