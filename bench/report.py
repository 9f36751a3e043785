#!/usr/bin/env python3
"""report.py BUILD: times the core and nbrc of a bench build and prints the ratios with their targets."""
import json
import os
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 7
LARGEST = 32767
LONGEST_COMMAND = 5  # milliseconds
PAGES = 1000
PAGE_BYTES = 20 * 1024


def timed(command, **options):
    """Returns wall-clock seconds and peak memory in bytes of one process."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, **options)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command[0]} ended with {process.returncode}")
    return seconds, usage.ru_maxrss * 1024


def verdict(name, value, limit):
    missed = "" if value <= limit else f"  MISSED by {value / limit - 1:.0%}"
    print(f"{name:58s} {value:7.2f}  (at most {limit}){missed}")


def linearity(bench):
    out = subprocess.run([bench, "--benchmark_format=json", "--benchmark_min_time=0.5"],
                         check=True, capture_output=True, text=True).stdout
    times = {}
    for run in json.loads(out)["benchmarks"]:
        work, elements = run["name"].split("/")
        times[work, int(elements)] = run["s/element"]
        print(f"{run['name']:20s} {run['real_time']:10.3f} ms  {run['bytes_per_second'] / 1e6:8.0f} MB/s"
              f"  {run['s/element'] * 1e9:8.0f} ns per element")
    print()
    for work in sorted({work for work, _ in times}):
        verdict(f"{work}: time per element, {LARGEST} to 3000", times[work, LARGEST] / times[work, 3000], 1.5)


def commands(bench):
    """Checks that single commands stay under LONGEST_COMMAND, and that commands on half a document are linear."""
    out = subprocess.run([bench, "--benchmark_format=json", "--benchmark_min_time=0.2"],
                         check=True, capture_output=True, text=True).stdout
    halves = []
    for run in json.loads(out)["benchmarks"]:
        if "s/element" in run:
            halves.append(run["s/element"])
        else:
            verdict(f"{run['name']}, ms in a document of 32,700", run["real_time"], LONGEST_COMMAND)
    verdict("cut and paste of half: time per element, 20,000 to 3,000", halves[1] / halves[0], 1.5)


def compile_against_cat(build, folder):
    subprocess.run([f"{build}/bench/nimbrel_large_document", str(LARGEST), folder], check=True)
    menu, script = f"{folder}/large.nbr", f"{folder}/menu.js"
    compile_call = [f"{build}/bin/nbrc", "compile", menu, "--to", script]
    timed(compile_call)
    copies = f"cat '{menu}' > '{folder}/copy.nbr'; cat '{script}' > '{folder}/copy.js'"
    ours, theirs, peak = [], [], 0
    for _ in range(ROUNDS):
        # Neither program replaces existing files.
        for copy in (f"{folder}/copy.nbr", f"{folder}/copy.js"):
            if os.path.exists(copy):
                os.remove(copy)
        os.sync()
        theirs.append(timed(["sh", "-c", copies])[0])
        os.remove(script)
        os.sync()
        seconds, memory = timed(compile_call)
        ours.append(seconds)
        peak = max(peak, memory)
    print(f"compile {statistics.median(ours) * 1e3:.0f} ms, cat {statistics.median(theirs) * 1e3:.1f} ms, "
          f"menu file {os.path.getsize(menu) / 1e6:.1f} MB, peak {peak / 1e6:.1f} MB")
    verdict("nbrc compile of the largest document, to cat", statistics.median(ours) / statistics.median(theirs), 10)
    verdict("its peak memory, to the menu file", peak / os.path.getsize(menu), 8)


def link_against_sed(build, folder):
    page = ("<html><body>\n" + "<p>A line of text, as pages have them.</p>\n" * PAGE_BYTES)[:PAGE_BYTES]
    page += "</body></html>\n"
    names = [f"{folder}/page{i}.html" for i in range(PAGES)]
    calls = {
        "nbrc": [f"{build}/bin/nbrc", "link", f"{folder}/menu.js", *names],
        "sed": ["sed", "-i", "s/as pages have/as all pages have/", *names],
    }
    seconds = {"nbrc": [], "sed": []}
    for _ in range(ROUNDS):
        for who, call in calls.items():
            for name in names:
                with open(name, "w", encoding="ascii") as file:
                    file.write(page)
            os.sync()
            seconds[who].append(timed(call)[0])
    ours, theirs = (statistics.median(seconds[who]) for who in ("nbrc", "sed"))
    print(f"link {ours * 1e3:.0f} ms, sed -i {theirs * 1e3:.0f} ms, {PAGES} pages of {PAGE_BYTES} bytes")
    verdict("nbrc link, to sed -i", ours / theirs, 1.0)


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "build/bench")
    linearity(f"{build}/bench/nimbrel_bench")
    commands(f"{build}/bench/nimbrel_command_bench")
    print()
    with tempfile.TemporaryDirectory(dir=build) as folder:
        compile_against_cat(build, folder)
        link_against_sed(build, folder)


main()
