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
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-noreset"], pass_fds=[writing],
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
    """Of our start, of an empty window and of one with a text and a picture: median seconds and median MiB."""
    programs = ("start_raster", "start_leeg", "start_beeld")
    rounds = [[start(build / program, folder) for program in programs] for _ in range(ROUNDS)]  # in turn: one machine
    return [tuple(map(statistics.median, zip(*one))) for one in zip(*rounds)]


def measured(program, *options):
    said = subprocess.run([program, "--benchmark_format=json", *options], capture_output=True, text=True, check=True)
    return json.loads(said.stdout)["benchmarks"]


def medians(program, *options):
    """The median time of each benchmark of a program."""
    rows = measured(program, "--benchmark_repetitions=5", "--benchmark_report_aggregates_only=true", *options)
    return {row["run_name"].split("/")[0]: row["real_time"] for row in rows if row["aggregate_name"] == "median"}


def generators(build):
    """Of each maker of puzzles: mean microseconds of the processor's time, and the share of words that were placed."""
    return {row["name"]: (row["cpu_time"], row.get("placed")) for row in measured(build / "bench_generators")}


def report_generators(made):
    (sudoku, _), (peer, _), (search, placed) = made["MakeASudoku"], made["SudokuOfQQwing"], made["MakeAWordSearch"]
    print(f"{'making a Sudoku':52} {sudoku:9.2f} us (at most 100), at {peer / sudoku:.1f} times the rate of qqwing (at least 5)")
    print(f"{'making a word search of 16 by 19 with 40 words':52} {search:9.2f} us (at most 500), {placed:.0%} of them placed")


def prints(build):
    """Of each print job: its name, with the median milliseconds and the bytes of its file."""
    rows = measured(build / "bench_print", build.parent / "bin", "--benchmark_repetitions=5",
                    "--benchmark_report_aggregates_only=true", "--benchmark_enable_random_interleaving=true")
    return {row["run_name"]: (row["real_time"], row.get("size")) for row in rows if row["aggregate_name"] == "median"}


def report_prints(jobs):
    for job in sorted(jobs):
        if job.startswith("PrintSample/"):
            name = job.partition("/")[2]
            (ours, size), (plain, plain_size) = jobs[job], jobs[f"PlainPages/{name}"]
            report(f"printing {name}, beside plain pages and fsync", ours, plain, "ms", 1.5)
            report("its PDF file, beside theirs", size / 1024, plain_size / 1024, "KiB", 1.2)
    row = jobs["ZweedsOf5000Rows"][0] / 5000
    print(f"{'a row of a Zweeds of 5000 rows, printed':52} {row:9.4f} ms (at most 0.5)")


def report(what, ours, peer, unit, most):
    print(f"{what:52} {ours:9.2f} {unit} beside {peer:9.2f} {unit}: {ours / peer:5.2f} times (at most {most})")


build = pathlib.Path(sys.argv[1]).resolve()
server = start_x_server()
try:
    with tempfile.TemporaryDirectory() as folder:
        (ours, memory), (empty, empty_memory), (picture, _) = starts(build, folder)
    times = medians(build / "bench_bord")
    waits = medians(build / "bench_vensters", build.parent / "bin")
    words = medians(build / "bench_woorden", "--benchmark_enable_random_interleaving=true")
    printed = prints(build)
finally:
    server.terminate()
report("start to first painted window, beside an empty one", ours * 1000, empty * 1000, "ms", 1.5)
report("the same, beside a window with text and a picture", ours * 1000, picture * 1000, "ms", 1.2)
report("drawing both boards, beside a plain fill", times["DrawBothBoards"], times["FillBothPictures"], "us", 4)
report("a whole save, beside the same bytes and fsync", times["WholeSaveWithoutItsWaits"], times["WriteTheSameBytes"], "ms", 2)
report("the web page, beside the same bytes and fsync", times["WebPageWithoutItsWait"], times["WriteTheBytesOfThePage"], "ms", 3)
report("the viewer of the largest board opened, beside a copy", waits["OpenViewerOfTheLargestBoard"], waits["CopyItsPicture"], "ms", 4)
for what, ours, peer, most in [
        ("a shuffled word list loaded, beside sort", "LoadShuffled", "SortShuffled", 0.85),
        ("the same in its order, beside sort of the shuffled", "LoadInFileOrder", "SortShuffled", 0.4),
        ("words of seven letters and two wildcards, beside an", "ZoekLetters", "AnWords", 0.05),
        ("words by their begin, beside grep", "ZoekBegin", "GrepBegin", 1),
        ("words by their end, beside grep", "ZoekEind", "GrepEnd", 1),
        ("words that contain a key, beside grep", "ZoekTrefwoord", "GrepKeyword", 1),
        ("anagrams of nine letters, beside an", "ZoekWisselingen", "AnAnagrams", 0.05),
        ("nine cells of which three known, beside grep -E", "ZoekOntbrekende", "GrepMissing", 1)]:
    report(what, words[ours], words[peer], "ms", most)
for what, ours, most in [
        ("the search window, from the order until it is shown", "OpenSearchWindow", 150),
        ("the proverbs, from the order until they are shown", "OpenProverbs", 100),
        ("the elements, from the order until they are shown", "OpenElements", 100),
        ("all words into its list, until shown", "AllWords", 300),
        ("words with three vowels in a row, until shown", "Vowels", 1000),
        ("a notepad of 10,000 lines saved", "SaveNotepad", 50),
        ("a key in a notepad of 1 MiB, until shown", "KeyInNotepad", 50),
        ("a step of a drag in the viewer, painted", "DragStepInTheViewer", 4)]:
    print(f"{what:52} {waits[ours]:9.2f} ms (at most {most})")
print(f"{'a Sudoku shuffled until it is painted':52} {times['ShuffleASudokuUntilItIsPainted']:9.2f} ms (at most 10)")
unseen, seen = times["WipeTheRasterUnseen"], times["WipeTheRasterColumnByColumn"]
print(f"{'the raster of the largest board wiped, unseen':52} {unseen:9.2f} ms (at most 10)")
print(f"{'the same, each of its 481 columns shown by itself':52} {seen:9.2f} ms: {seen / 481:.3f} ms a column")
print(f"{'resident memory with the empty board':52} {memory:9.2f} MiB (at most 70; an empty window {empty_memory:.2f})")
report_generators(generators(build))
report_prints(printed)
