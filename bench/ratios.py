"""Runs the benchmarks of a build folder and prints each ratio beside what it may be at most."""
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 25


def start_x_server():
    reading, writing = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24"], pass_fds=[writing],
                              stderr=subprocess.DEVNULL)
    os.close(writing)
    os.environ["DISPLAY"] = ":" + os.fdopen(reading).readline().strip()
    os.environ["QT_QPA_PLATFORM"] = "xcb"
    return server


def start(program, folder):
    """Seconds from the start of a program to its first painted window, and MiB resident then."""
    begin = time.perf_counter()
    said = subprocess.run([program, folder], capture_output=True, text=True, check=True).stdout
    return time.perf_counter() - begin, int(said.split()[1]) / 1024


def starts(build, folder):
    ours, empty = [], []
    for _ in range(ROUNDS):  # in turn, so that both meet the same machine
        empty.append(start(build / "start_leeg", folder))
        ours.append(start(build / "start_raster", folder))
    return tuple(statistics.median(value) for rounds in (ours, empty) for value in zip(*rounds))


def boards(build):
    said = subprocess.run([build / "bench_bord", "--benchmark_format=json", "--benchmark_repetitions=5",
                           "--benchmark_report_aggregates_only=true"], capture_output=True, text=True, check=True)
    return {row["run_name"].split("/")[0]: row["real_time"] for row in json.loads(said.stdout)["benchmarks"]
            if row["aggregate_name"] == "median"}


def report(what, ours, peer, unit, most):
    print(f"{what:48} {ours:9.2f} {unit} beside {peer:9.2f} {unit}: {ours / peer:5.2f} times (at most {most})")


build = pathlib.Path(sys.argv[1]).resolve()
server = start_x_server()
try:
    with tempfile.TemporaryDirectory() as folder:
        ours, memory, empty, empty_memory = starts(build, folder)
    times = boards(build)
finally:
    server.terminate()
report("start to first painted window", ours * 1000, empty * 1000, "ms", 1.5)
report("drawing both boards, beside a plain fill", times["DrawBothBoards"], times["FillBothPictures"], "us", 4)
report("a whole save, beside writing the same bytes", times["WholeSaveWithoutItsWaits"], times["WriteTheSameBytes"], "ms", 3)
print(f"{'resident memory with the empty board':48} {memory:9.2f} MiB (at most 70; an empty window {empty_memory:.2f})")
