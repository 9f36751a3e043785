#!/usr/bin/env python3
"""Edits a menu at random in `nbrc play --state`, kills it with SIGKILL at a random moment, and looks at what the next
start recovers.  recovery_trial.py NBRC MENU.nbr KILLS MAXIMUM-SECONDS-LOST [SEED]"""
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

nbrc, menu, kills, most = os.path.abspath(sys.argv[1]), sys.argv[2], int(sys.argv[3]), float(sys.argv[4])
chance = random.Random(sys.argv[5] if len(sys.argv) > 5 else "1")
here = tempfile.mkdtemp()
os.makedirs(here + "/home/libraries")
menu = shutil.copy(menu, here + "/menu.nbr")
call = [nbrc, "--home", here + "/home", "play", "--state", here + "/state", "-"]


def lines(statements):
    out = subprocess.run(call, input=statements, capture_output=True, text=True)
    assert out.returncode == 0 and not out.stderr, out.stderr + out.stdout
    return [json.loads(line) for line in out.stdout.splitlines()]


def found(kind, transcript):
    return [line[kind] for line in transcript if kind in line]


def names(tree):
    return {node["key"]: node["text"].split(" - ")[0] for node in tree}


class Run:
    """One start of the program, its edits, and the states of the document before and after each."""

    def __init__(self):
        self.process = subprocess.Popen(call, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.times, self.changes, self.undo = [], [{}], []
        self.state, self.next = dict(first), counter
        self.ask(f'choose "{menu}"\nrun mnuFileOpen\n')

    def ask(self, statements):
        """Returns when the statements have been carried out."""
        self.process.stdin.write(statements + "print settings\n")
        self.process.stdin.flush()
        while '"settings"' not in self.process.stdout.readline():
            pass

    def edit(self):
        kind = chance.random()
        key = chance.choice(items)
        if kind < .15 and self.undo:
            self.ask("run mnuEditUndo\n")
            key, text, self.next = self.undo.pop()
        elif kind < .3 and self.next < 32767:  # the last key
            self.undo.append((f"I{self.next}", None, self.next))
            self.ask(f"select {key}\nrun mnuItemAddItem\n")
            key, text, self.next = f"I{self.next}", f"Item{self.next}", self.next + 1
        else:
            self.undo.append((key, self.state[key], self.next))
            text = f"v{len(self.times)}"
            self.ask(f"select {key}\nedit 0 1 {text}\nleave\n")
        self.state[key] = text
        self.changes.append({key: text})
        self.times.append(time.time())

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.killed = time.time()
        self.process.communicate()

    def loss(self, tree):
        """Seconds from the first edit that is not in the tree to the kill, or None if the document was never so."""
        state, last = dict(first), None
        for number, change in enumerate(self.changes):
            state.update(change)
            if all(tree.get(key) == text for key, text in change.items()):
                if tree == {key: text for key, text in state.items() if text is not None}:
                    last = number
        if last is None:
            return None
        return self.killed - self.times[last] if last < len(self.times) else 0


opened = [line for line in lines(f'choose "{menu}"\nrun mnuFileOpen\nprint tree\nclose\n') if "tree" in line][0]
first, counter = names(opened["tree"]), opened["nextKeyNumber"]
items = [key for key in first if key[0] == "I"]
losses, torn, twice, empty, left = [], 0, 0, 0, 0
for _ in range(kills):
    run = Run()
    end = time.time() + chance.uniform(0.1, 4)
    while time.time() < end:
        run.edit()
        if chance.random() < .5:
            time.sleep(chance.uniform(0, .2))
    run.kill()
    recovered = lines("form frmRecovery cmdRecover!\nprint tree\nprint state\nanswer No\nclose\n"
                      if os.path.isfile(here + "/state/recovery/1/document") else "print tree\nclose\n")
    loss = run.loss(names(found("tree", recovered)[0])) if found("form", recovered) else run.killed - run.times[0]
    empty += not found("form", recovered)
    torn += loss is None
    losses.append(loss or 0)
    twice += bool(found("form", lines("print settings\n")))
    left += len(os.listdir(here + "/state/recovery"))
losses.sort()
print(f"{kills} kills: loss median {losses[kills // 2]:.2f} s, worst {losses[-1]:.2f} s; torn {torn}, twice {twice}, "
      f"killed before the first write {empty}, folders left {left}")
shutil.rmtree(here)
sys.exit(bool(losses[-1] > most or torn or twice or left))
