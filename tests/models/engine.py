#!/usr/bin/env python3
"""Plays random histories on zorsh and compares everything that can be seen with a model, step by step."""

import argparse
import os
import random
import re
import subprocess
import sys
import tempfile
import time

import choice
import display
import numeric
import pages
import slider
import text_box
import toggles
from values import Colour, Unsaid, written

MODELS = {**display.CONTROLS, **numeric.CONTROLS, **slider.CONTROLS, **text_box.CONTROLS, **choice.CONTROLS, **toggles.CONTROLS,
          **pages.CONTROLS}
LENGTH, BATCH = 60, 100


class Form:
    """What is around a control: user, container, and the sizes that a platform alone knows, which are asked from it."""

    def __init__(self, zorsh, cache):
        self.zorsh, self.cache = zorsh, cache
        self.usermode, self.menu, self.boxes = True, "none", []
        self.decimal, self.group = ".", ","

    def tell(self, what, *arguments):
        if what == "usermode":
            self.usermode = arguments[0] == "on"
        elif what == "locale":
            self.decimal, self.group = [argument.strip('"') for argument in (*arguments, "")[:2]]

    def ask(self, *lines):
        if lines not in self.cache:
            done = subprocess.run(self.zorsh, input="\n".join(lines) + "\n", capture_output=True, text=True, check=True)
            self.cache[lines] = done.stdout.splitlines()[-1]
        return self.cache[lines]

    def designed(self, name, aspects):
        """Colours as designed and what fonts decide: of a fresh control, where no rule says otherwise."""
        known = self.cache.get(name)
        if known is None:
            said = self.ask(f"new {name} c", "get " + " ".join("c." + aspect for aspect in aspects))
            said = re.findall(r'"(?:[^"\\]|\\.)*"|\S+', said)
            known = self.cache[name] = {aspect: reading(word) for aspect, word in zip(aspects, said)}
        return known

    def width(self, text, bold=False, italic=False):
        return float(self.ask("new ctx_ZorLabel m", f"put m LabelFontItalic={italic} LabelFontBold={bold}",
                              f"put m.LabelCaption {written(text)}", "get m.lbl_Label.Width"))

    def caption(self, text, bold):
        return float(self.ask("new ctx_ZorCheckBox m", f"put m DataModified={bold} CheckBoxCaption={written(text)}",
                              "get m.chk_CheckBox.Width")) - 330


def reading(word):
    if word in ("True", "False"):
        return word == "True"
    if word.startswith('"'):
        return word[1:-1]
    return float(word) if re.fullmatch(r"-?[\d.]+", word) else Colour(word)


class Player:
    def __init__(self, zorsh, platform, model):
        self.zorsh, self.model, self.cache = [zorsh, "--platform", platform], model, {}
        self.folder = tempfile.TemporaryDirectory()

    def fresh(self):
        return self.model(Form(self.zorsh, self.cache))

    def history(self, rng, length):
        """Steps, and the script that expects what the model says of them."""
        control, steps, script = self.fresh(), [], self.opening()
        try:
            while len(steps) < length:
                for step in control.random_steps(rng):
                    script.append(control.play(step))
                    steps.append(step)
        except Unsaid:
            pass
        return steps, script

    def opening(self):
        opening = [(line, []) for line in self.model.opening()]
        return [(opening, [("events c quiet", []), ("notices c quiet", [])])]

    def replay(self, steps):
        control, script = self.fresh(), self.opening()
        try:
            for step in steps:
                script.append(control.play(step))
        except Unsaid:
            return None
        return script

    def failures(self, scripts):
        """Of each script that failed the place in it and what zorsh said, first one first."""
        names = []
        for i, script in enumerate(scripts):
            names.append(os.path.join(self.folder.name, f"{i}.zor"))
            with open(names[-1], "w", encoding="utf-8") as file:
                file.writelines("\n= ".join((command, *(said or [""]))) + "\n"
                                for done, seen in script for command, said in done + seen)
        done = subprocess.run(self.zorsh + names, capture_output=True, text=True, timeout=300)
        said = (done.stderr + done.stdout).splitlines()
        found = {}
        for line in said:
            match = re.match(r".*/(\d+)\.zor:(\d+): (.*)", line)
            if match and int(match[1]) not in found:
                found[int(match[1])] = (*self.place(scripts[int(match[1])], int(match[2])), match[3])
        if done.returncode and not found:
            raise SystemExit(f"zorsh ended with {done.returncode}: {said[-5:]}")
        return found

    @staticmethod
    def place(script, line):
        """Which step and which command a line of the file belongs to."""
        for number, (done, seen) in enumerate(script):
            for command, said in done + seen:
                line -= 1 + max(len(said), 1)
                if line <= 0:
                    return number, command
        raise LookupError(line)

    def fails(self, steps):
        script = self.replay(steps)
        return script and self.failures([script]).get(0)

    def shrink(self, steps):
        """The shortest history that still fails: halves are left out, then less and less."""
        found = self.fails(steps)
        steps = steps[:max(found[0], 1)]
        size = len(steps) // 2
        while size:
            at = 0
            while at < len(steps):
                fewer = steps[:at] + steps[at + size:]
                if fewer and self.fails(fewer):
                    steps = fewer
                else:
                    at += size
            size //= 2
        return steps

    def report(self, steps):
        """The history as anyone can play it, with the expectations that fail."""
        script = self.replay(steps)
        lines = []
        for done, seen in script:
            for command, said in done:
                lines += [command, *("= " + line for line in said)]
        wanted = self.failures([script])[0]
        for command, said in [line for line in script[wanted[0]][1] if line[0] == wanted[1]]:
            if not command.startswith("get "):
                lines += [command, *("= " + line for line in said)]
                continue
            words = re.findall(r'"(?:[^"\\]|\\.)*"|\S+', said[0])
            for name, word in zip(command.split()[1:], words):
                one = script[:wanted[0]] + [(script[wanted[0]][0], [("get " + name, [word])])]
                if found := self.failures([one]):
                    lines += ["get " + name, f"= {word}  # {found[0][2].rpartition('got ')[2]}"]
        return "\n".join(lines if wanted[1].startswith("get ") else [*lines, "# " + wanted[2]])

    def run(self, count, seed):
        """Plays that many steps; answers the first history that diverges, or None."""
        rng, played = random.Random(seed), 0
        while played < count:
            batch = [self.history(rng, LENGTH) for _ in range(min(BATCH, (count - played) // LENGTH + 1))]
            found = self.failures([script for _, script in batch])
            if found:
                return self.report(self.shrink(batch[min(found)][0]))
            played += sum(len(steps) for steps, _ in batch)
        return None


def prove(zorsh, platform):
    """That a divergence is found, and told in as few commands as it takes: a label that never looks at its versions."""
    wrong = type("Wrong", (display.Label,), {"check_version": display.Label.support})
    told = Player(zorsh, platform, wrong).run(10_000, 1).splitlines()
    if len(told) != 6 or not told[3].startswith("put c.DeviceVersion") or told[4] != "get c.DeviceVerNotSupported":
        sys.exit("\n".join(["the wrong model is told like this:", *told]))


def main():
    if sys.argv[1:] == ["--kinds"]:
        return print(*MODELS)
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("zorsh")
    parser.add_argument("kind", choices=[*MODELS, "wrong"])
    parser.add_argument("platform", choices=("headless", "qt"))
    parser.add_argument("--steps", type=int, default=10_000)
    asked = parser.parse_args()
    seed, began = int(os.environ.get("ZOR_SEED", 1)), time.monotonic()
    if asked.kind == "wrong":
        return prove(asked.zorsh, asked.platform)
    found = Player(asked.zorsh, asked.platform, MODELS[asked.kind]).run(asked.steps, seed)
    if found:
        sys.exit(f"{asked.kind} on {asked.platform}, ZOR_SEED={seed}: model and zorsh say different things\n{found}")
    return print(f"{asked.kind} on {asked.platform}: {asked.steps} steps of ZOR_SEED={seed} in {time.monotonic() - began:.0f} s")


if __name__ == "__main__":
    main()
