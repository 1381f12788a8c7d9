#!/usr/bin/env python3
"""Plays the same scenarios on the headless window system and on the real one and tells where they part.

compare.py short [--base N]      about a minute: what "make test" runs
compare.py long [--base N]       50,000 operations of each kind and 1,000 runs of 200 actions
compare.py random controls|dialogs [--base N] [--first N] [--count N] [--actions N] [--reduce N]
compare.py pictures
compare.py file FILE [--reduce N]

Random scenarios come from a base: scenario n of a base is always the same. Of each scenario the first difference
counts and what follows it does not, since it follows from it. --reduce cuts the first N scenarios that differ in a
way that is not known down to the lines that the difference needs, and prints them.

What is known stands in known.txt, each difference with its reason, a pattern for the differences that it explains,
and a scenario that shows it. A known difference counts as a difference all the same; one whose scenario no longer
differs fails. The short run fails on any other difference; the long one fails below the goals.
"""
import argparse
import collections
import os
import re
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
KNOWN = os.path.join(ROOT, "tests/differential/known.txt")
SYSTEMS = ("native", "win32")
WINE = os.path.join(ROOT, "tools/run-wine.sh")
# Instructions that set up; the others are what is counted.
SETUP = ("dialog", "page", "control", "show", "open")
TIME_LIMIT = 3600
# Per cent of operations, and of runs whose records, stores, messages and host calls are the same.
GOALS = {"controls": 99.9, "dialogs": 99.95, "outcomes": 99.5}
# The equation pictures, in a pane at 100 and at 150 %, and how many per cent of a picture's dark pixels may differ:
# edges that fall between two pixels go to the one or to the other, a bar is a row thicker or thinner.
EQUATIONS = os.path.join(ROOT, "resources/equations.rc")
PICTURE_SIZES = ((333, 55), (500, 83))
PICTURE_LIMIT = 15.0
# kind -> scenarios, actions of each
SHORT = {"controls": (120, 40), "dialogs": (40, 100)}
LONG = {"controls": (1250, 50), "dialogs": (1000, 200)}
CHUNK = 250  # scenarios of one process


def folder(system):
    path = os.path.join(ROOT, "build", system, "differential")
    os.makedirs(path, exist_ok=True)
    return path


def environment(system):
    env = dict(os.environ)
    if system != "native":
        env["ZX_WINE_PREFIX"] = os.path.join(ROOT, "build", system, "wine")
        env["ZX_WINE_TIMEOUT"] = str(TIME_LIMIT)
    return env


def command(system, words):
    # A Windows program takes paths relative to the folder that it starts in.
    if system == "native":
        return ["bin/zx_differential"] + words
    return [WINE, "bin/zx_differential.exe"] + words


def start(system, name, scenarios):
    with open(os.path.join(folder(system), name + ".txt"), "w", encoding="ascii") as file:
        file.writelines("scenario %s\n%s\n" % (n, "\n".join(lines)) for n, lines in scenarios)
    trace = os.path.join(folder(system), name + ".trace")
    if os.path.exists(trace):
        os.remove(trace)
    return subprocess.Popen(
        command(system, ["play", "differential/%s.txt" % name, "differential/%s.trace" % name]),
        cwd=os.path.join(ROOT, "build", system), env=environment(system), stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT)


def play(scenarios, name="play"):
    """Plays [(name, lines)] on both systems at once; gives for each system {name: [(instruction, [line])]}. A program
    that ends before its time starts again behind the scenario that it ended in."""
    traces = [{} for _ in SYSTEMS]
    left = [list(scenarios) for _ in SYSTEMS]
    running = [start(system, name, scenarios) for system in SYSTEMS]
    for i, system in enumerate(SYSTEMS):
        while True:
            said = running[i].communicate()[0].decode("latin-1").strip()
            played = read_trace(os.path.join(folder(system), name + ".trace"))
            traces[i].update(played)
            if running[i].returncode == 0:
                break
            print("    %s: the program ended with %d%s" % (system, running[i].returncode, said and "\n" + said))
            left[i] = left[i][max(1, len(played)):]
            if not left[i]:
                break
            running[i] = start(system, name, left[i])
    return traces


def read_trace(path):
    scenarios, blocks = {}, []
    try:
        with open(path, encoding="latin-1") as file:
            for line in file:
                line = line.rstrip("\r\n")
                if line.startswith("scenario "):
                    blocks = scenarios.setdefault(line[9:], [])
                elif line.startswith("@ "):
                    blocks.append((line[2:], []))
                elif line == "end":
                    blocks.append(("end", []))
                elif blocks:
                    blocks[-1][1].append(line)
    except OSError:
        pass
    return scenarios


class Difference:
    """The first one of a scenario: at which instruction, and what each system alone says there."""

    def __init__(self, at, instruction, ours, theirs):
        self.at = at
        self.instruction = instruction
        self.ours = ours
        self.theirs = theirs

    def text(self):
        return "\n".join(["  at " + self.instruction] + ["    headless: " + line for line in self.ours] +
                         ["    platform: " + line for line in self.theirs])

    def kind(self):
        """What the differences of one cause have in common, roughly: the verb and the fields that differ."""
        words = self.instruction.split()
        kind = words[0] + (" " + words[2] if words[0] == "send" and len(words) > 2 else "")
        kind += " " + words[1] if words[0] == "key" and len(words) > 1 else ""
        fields = set()
        theirs = {key(line): line for line in self.theirs}
        for line in self.ours:
            other = theirs.pop(key(line), None)
            fields |= {"only headless " + line[:1] + class_of(line)} if other is None else fields_of(line, other)
        fields |= {"only platform " + line[:1] + class_of(line) for line in theirs.values()}
        return kind + ": " + ", ".join(sorted(fields))


WORD = re.compile(r'"[^"]*"|\S+')


def key(line):
    return " ".join(line.split()[:2]) if line.startswith(".") else line[:1]


def class_of(line):
    words = WORD.findall(line)
    return " " + words[3] if line.startswith(".") and len(words) > 3 and words[2].startswith("(") else ""


def fields_of(ours, theirs):
    if not ours.startswith("."):
        return {ours[:1]}
    mine, other = WORD.findall(ours), WORD.findall(theirs)
    fields, field = set(), "text"
    for a, b in zip(mine[3:], other[3:]):
        if re.fullmatch("[a-z]+", a):
            field = a
        if a != b:
            fields.add(class_of(ours) + "." + field)
    if len(mine) != len(other):
        fields.add(class_of(ours) + ".items")
    return {f.strip() for f in fields}


def first_difference(ours, theirs):
    for at in range(max(len(ours), len(theirs))):
        mine = ours[at] if at < len(ours) else ("nothing: it ended here", [])
        other = theirs[at] if at < len(theirs) else ("nothing: it ended here", [])
        if mine != other:
            a = [line for line in mine[1] if line not in other[1]]
            b = [line for line in other[1] if line not in mine[1]]
            if not a and not b:
                a, b = mine[1], other[1]
            if mine[0] != other[0]:
                a, b = [mine[0]] + a, [other[0]] + b
            return Difference(at, mine[0] if at < len(ours) else other[0], a, b)
    return None


def compare(scenarios, name="play"):
    """[(name, lines, difference or None, instructions that agreed)]"""
    ours, theirs = play(scenarios, name)
    return differences_of(scenarios, ours, theirs)


def differences_of(scenarios, ours, theirs):
    results = []
    for scenario, lines in scenarios:
        difference = first_difference(ours.get(scenario, []), theirs.get(scenario, []))
        done = ours.get(scenario, [])
        if difference is not None:
            done = done[:difference.at]
        elif not done:
            difference = Difference(0, "nothing was played", [], [])
        agreed = sum(1 for instruction, _ in done if instruction.split()[0] not in SETUP + ("end",))
        results.append((scenario, lines, difference, agreed))
    return results


def reduce(results):
    """Cuts scenarios down to the lines that their difference needs, all of them side by side."""
    work = {}
    for scenario, lines, difference, _ in results:
        work[scenario] = (lines[:difference.at + 1], difference, max(1, (difference.at + 1) // 2))
    active = set(work)
    while active:
        # Each chunk left out alone, then as many of those at once as can be.
        tries = {}
        for scenario in active:
            lines, _, size = work[scenario]
            tries[scenario] = [lines[:at] + lines[at + size:] for at in range(1, len(lines) - 1, size)]
        good = differing(tries, work)
        chosen = {}
        for scenario in active:
            lines, _, size = work[scenario]
            starts = [1 + i * size for i in sorted(good.get(scenario, {}))]
            chosen[scenario] = []
            for count in range(len(starts), 0, -1):
                gone = {n for at in starts[:count] for n in range(at, at + size)}
                chosen[scenario].append([line for n, line in enumerate(lines) if n not in gone])
        best = differing(chosen, work)
        for scenario in list(active):
            lines, difference, size = work[scenario]
            found = best.get(scenario, {})
            if found:
                index = min(found)
                difference = found[index]
                lines = chosen[scenario][index][:difference.at + 1]
            if size == 1 and not found:
                active.discard(scenario)
            work[scenario] = (lines, difference, min(max(1, size // 2), max(1, len(lines) // 2)))
    return {scenario: (lines, difference) for scenario, (lines, difference, _) in work.items()}


def differing(tries, work):
    """scenario -> {index of the try: its difference}, of those that differ at the same sort of instruction."""
    batch = [("%s|%d" % (scenario, i), lines) for scenario, all_tries in tries.items()
             for i, lines in enumerate(all_tries) if lines]
    found = collections.defaultdict(dict)
    if batch:
        for name, _, difference, _ in compare(batch, "reduce"):
            scenario, index = name.rsplit("|", 1)
            if difference is not None and difference.kind() == work[scenario][1].kind():
                found[scenario][int(index)] = difference
    return found


def read_known():
    """[(name, pattern, lines)]; a reason stands before each as comments, the pattern as the comment "matches"."""
    known, pattern = [], None
    with open(KNOWN, encoding="utf-8") as file:
        for line in file:
            line = line.rstrip("\n")
            if line.startswith("; matches "):
                pattern = re.compile(line[10:], re.S)
            elif line.startswith("scenario "):
                known.append((line[9:], pattern, []))
            elif line and not line.startswith(";"):
                known[-1][2].append(line)
    return known


def generate(kind, base, first, count, actions):
    path = os.path.join(folder("native"), kind + ".txt")
    subprocess.check_call(command("native", ["generate", kind, str(base), str(first), str(count), str(actions),
                                             "differential/%s.txt" % kind]),
                          cwd=os.path.join(ROOT, "build/native"))
    return read_scenarios(path)


def read_scenarios(path):
    scenarios = []
    with open(path, encoding="ascii") as file:
        for line in file:
            line = line.rstrip("\n")
            if line.startswith("scenario "):
                scenarios.append((line[9:], []))
            elif line and not line.startswith(";"):
                scenarios[-1][1].append(line)
    return scenarios


def outcome(blocks):
    """What a run of a dialog leaves for its host: all lines but those of windows and of the parent."""
    kept = []
    for instruction, lines in blocks:
        kept += [line for line in lines if line[:1] not in ".!"]
        # The texts of messages: a dialog that is not one of the library's pages has no tab control.
        kept += [WORD.findall(line)[3] for line in lines
                 if line.startswith(". ") and " static " in line and len(WORD.findall(line)) > 4 and
                 WORD.findall(line)[2] == "(100)"]
    return kept


def run(kind, base, first, count, actions):
    """As compare, in several processes; gives the results and the scenarios that did not leave the same behind."""
    results, others = [], []
    for start_at in range(first, first + count, CHUNK):
        size = min(CHUNK, first + count - start_at)
        scenarios = generate(kind, base, start_at, size, actions)
        ours, theirs = play(scenarios, kind)
        results += differences_of(scenarios, ours, theirs)
        others += [n for n, _ in scenarios
                   if n not in ours or n not in theirs or outcome(ours[n]) != outcome(theirs[n])]
    return results, others


def report(results, known, to_reduce):
    """Prints what differs; gives (operations compared, differences, unknown ones)."""
    agreed = sum(r[3] for r in results)
    differences = [r for r in results if r[2] is not None]
    unknown, counts = [], collections.Counter()
    for result in differences:
        text = result[2].text()
        name = next((n for n, pattern, _ in known if pattern and pattern.search(text)), None)
        if name is None:
            unknown.append(result)
            counts[result[2].kind()] += 1
        else:
            counts["known: " + name] += 1
    for kind, count in counts.most_common():
        print("    %4d  %s" % (count, kind[:150]))
    shown, kinds = [], set()
    for result in unknown:
        if result[2].kind() not in kinds:
            kinds.add(result[2].kind())
            shown.append(result)
    for scenario, (lines, difference) in reduce(shown[:to_reduce]).items() if to_reduce else ():
        print("--- %s\n%s\n%s" % (scenario, "\n".join(lines), difference.text()))
    return agreed + len(differences), len(differences), len(unknown)


def check_known(known):
    """The names of the known differences that are no longer there."""
    results = compare([(name, lines) for name, _, lines in known], "known")
    closed = []
    for (name, pattern, _), (_, _, difference, _) in zip(known, results):
        if difference is None or not pattern.search(difference.text()):
            print("    the known difference \"%s\" is closed, its entry can go" % name)
            closed.append(name)
    return closed


def pictures_differ():
    """Lays the pictures of both systems over each other; gives whether one differs by more than the limit."""
    with open(EQUATIONS, encoding="utf-8") as file:
        names = re.findall(r"^(\w+) METAFILE", file.read(), re.M)
    scenarios = [(name, ["picture %s %d %d" % ((name,) + size) for size in PICTURE_SIZES]) for name in names]
    ours, theirs = play(scenarios, "pictures")
    shares = []
    for name, lines in scenarios:
        for at, line in enumerate(lines):
            mine, other = ("".join(trace[name][at][1]) for trace in (ours, theirs))
            dark = other.count("#")
            differing = sum(a != b for a, b in zip(mine, other)) + abs(len(mine) - len(other))
            shares.append((100.0 * differing / dark if dark else 100.0, line))
    worst, line = max(shares)
    print("    pictures: %d, on average %.2f %% of the dark pixels differ, at most %.2f %% (%s), the limit is %s" % (
        len(shares), sum(share for share, _ in shares) / len(shares), worst, line, PICTURE_LIMIT))
    return worst > PICTURE_LIMIT


def report_outcomes(others, count, actions):
    """Prints which runs left something else behind for their host; gives the per cent of those that did not."""
    for name in others:
        print("    %s leaves something else behind" % name)
    outcomes = 100.0 * (count - len(others)) / max(1, count)
    print("    outcomes: %d of %d runs of %d actions left the same records, stores, messages and host calls: "
          "%.2f %%, the goal is %s" % (count - len(others), count, actions, outcomes, GOALS["outcomes"]))
    return outcomes


def run_all(sizes, base, strict):
    """Known differences, pictures, controls, dialogs; gives whether all is well."""
    known = read_known()
    well = not check_known(known)
    well = not pictures_differ() and well
    print("    %d known differences" % len(known))
    for kind, (count, actions) in sizes.items():
        results, others = run(kind, base, 0, count, actions)
        operations, differences, unknown = report(results, known, 0)
        equal = 100.0 * (operations - differences) / max(1, operations)
        print("    %s: base %d, %d operations compared, %d differences (%d not known): %.3f %% equal, the goal is %s" % (
            kind, base, operations, differences, unknown, equal, GOALS[kind]))
        if kind == "dialogs":
            outcomes = report_outcomes(others, count, actions)
            well = well and (outcomes >= GOALS["outcomes"] or strict)
        well = well and (unknown == 0 if strict else equal >= GOALS[kind])
    return well


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=("short", "long", "random", "pictures", "file"))
    parser.add_argument("which", nargs="?")
    parser.add_argument("--base", type=int, default=1)
    parser.add_argument("--first", type=int, default=0)
    parser.add_argument("--count", type=int, default=50)
    parser.add_argument("--actions", type=int, default=40)
    parser.add_argument("--reduce", type=int, default=0)
    args = parser.parse_args()
    if args.what in ("short", "long"):
        return 0 if run_all(SHORT if args.what == "short" else LONG, args.base, args.what == "short") else 1
    if args.what == "pictures":
        return 1 if pictures_differ() else 0
    if args.what == "file":
        results = compare(read_scenarios(args.which))
    else:
        results, others = run(args.which, args.base, args.first, args.count, args.actions)
        if args.which == "dialogs":
            report_outcomes(others, args.count, args.actions)
    operations, differences, unknown = report(results, read_known(), args.reduce)
    print("%d scenarios, %d operations compared, %d differences (%d not known): %.3f %% equal" % (
        len(results), operations, differences, unknown, 100.0 * (operations - differences) / max(1, operations)))
    return 1 if unknown else 0


if __name__ == "__main__":
    sys.exit(main())
