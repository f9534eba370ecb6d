"""Starts the built program on a real display, uses it as a person would, and looks at the pixels.

Usage: end_to_end_test.py PROGRAM. Ends with status 77 where the display programs are missing.
"""

import os
import resource
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from desktop import Desktop, missing_programs  # noqa: E402

PROGRAM = ""
BACKGROUND = 0x221E1F
BLACK, WHITE = 0x000000, 0xFFFFFF
RED = 0xFF3200  # of the first population


def fcs_bytes(events, pixels_range=1000):
    """An FCS 3.0 file of 16-bit integers on two linear channels, X and Y."""
    text = "/$TOT/%d/$PAR/2/$DATATYPE/I/$BYTEORD/1,2,3,4" % len(events)
    for n, name in ((1, "X"), (2, "Y")):
        text += "/$P%dN/%s/$P%dR/%d/$P%dB/16/$P%dE/0,0" % (n, name, n, pixels_range, n, n)
    text += "/"
    data = 58 + len(text)
    body = b"".join(struct.pack("<HH", x, y) for x, y in events)
    header = "FCS3.0    %8d%8d%8d%8d%8d%8d" % (58, data - 1, data, data + len(body) - 1, 0, 0)
    return header.encode() + text.encode() + body


class EndToEnd(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.desktop = Desktop()
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__, None, None, None)
        # The program keeps its autosave beside itself, and these tests leave it by killing it.
        self.installed = shutil.copy(PROGRAM, self.folder.name)

    def file(self, name, events):
        path = os.path.join(self.folder.name, name)
        with open(path, "wb") as out:
            out.write(fcs_bytes(events))
        return path

    def start(self, *words):
        self.program = self.desktop.start(self.installed, *words)
        self.main = self.desktop.wait_for_window("Tessarin v. 1.2.1")
        return self.main

    def wait_for_plot(self):
        # The display itself is black too, right of and below the main window.
        def plotted():
            picture = self.desktop.picture()
            return picture if picture.count(BLACK, (0, 0, 600, 600)) > 40000 else None

        return self.desktop.until(plotted, "a plot")

    def test_a_block_of_events_stands_where_it_should(self):
        # Events so close that they fill the middle fifth of both axes: a square of dots.
        square = [(x, y) for x in range(400, 600, 2) for y in range(400, 600, 2)]
        self.start(self.file("square.fcs", square))
        middle = self.desktop.until(self.square_of_dots, "the square")
        width = max(x for x, _ in middle) - min(x for x, _ in middle)
        height = max(y for _, y in middle) - min(y for _, y in middle)
        # A fifth of the axes of about 220 and 200 pixels, less the rim that was cut above.
        self.assertTrue(34 <= width <= 46, width)
        self.assertTrue(30 <= height <= 46, height)

    def square_of_dots(self):
        """Places of dots among dots in the middle of the first window, which is 266 wide in all."""
        picture = self.desktop.picture()
        dots = [
            (x, y)
            for y in range(81, 230)
            for x in range(61, 200)
            if picture.at(x, y) == WHITE
            and picture.at(x - 2, y) == WHITE
            and picture.at(x + 2, y) == WHITE
            and picture.at(x, y - 2) == WHITE
            and picture.at(x, y + 2) == WHITE
        ]
        return dots if len(dots) > 500 else None

    def test_a_session_by_mouse_and_keys(self):
        desktop = self.desktop
        self.start(self.file("a.fcs", [(100, 100), (500, 500), (500, 500), (900, 900)]))
        self.wait_for_plot()

        desktop.key("ctrl+d")
        two = desktop.until(
            lambda: self.count_black((280, 0, 600, 300)) > 40000, "a second plot"
        )
        self.assertTrue(two)

        # Density by the pop-up menu: two events in one cell are of grey 95.
        desktop.click(130, 100, 3)
        desktop.key("Down", "Down", "Down", "Down", "Return")
        desktop.until(lambda: self.count(0x5F5F5F, (20, 60, 244, 264)) > 0, "the density of two")
        self.assertGreater(self.count(0x3C3C3C, (20, 60, 244, 264)), 0)

        # The other background, and a larger window by its lower right corner.
        desktop.click(130, 100, 3)
        desktop.key("Up", "Up", "Up", "Up", "Return")
        before = desktop.until(
            lambda: self.count(WHITE, (0, 0, 266, 300)) > 40000 and self.frame_corner(),
            "a white plot",
        )
        desktop.drag(before[0], before[1], 500, 560)
        desktop.until(lambda: self.count(WHITE, (0, 0, 500, 560)) > 120000, "a larger plot")

        # Leaving: first not, then yes.
        self.exit_by_menu("Escape")
        desktop.until(lambda: not desktop.windows("Exit the program"), "the question to go")
        self.assertIsNone(self.program.poll())
        desktop.do("windowfocus", "--sync", self.main)
        self.exit_by_menu("Tab", "space")  # from Cancel to OK
        _, complaints = self.program.communicate(timeout=20)
        self.assertEqual((self.program.returncode, complaints.decode()), (0, ""))

    def test_a_region_colours_the_events_inside(self):
        # Dots a tenth of the axes apart; a pixel of the plot area is about 4.5 units wide and 5
        # high, so a border at 350 or 650 runs well between two of them.
        dots = [(x, y) for x in range(100, 1000, 100) for y in range(100, 1000, 100)]
        self.start(self.file("dots.fcs", dots))
        self.wait_for_plot()
        desktop = self.desktop
        plot = (20, 60, 246, 264)  # on the screen: the plot area and a little around it
        before = self.count(RED, plot)
        self.assertEqual(before, 0)

        self.press_in_panel(987, 118)
        place = lambda x, y: (22 + x * 222 // 1000, 263 - y * 202 // 1000)
        for corner in ((350, 250), (650, 250), (650, 650), (350, 650)):
            desktop.click(*place(*corner))
        desktop.click(*place(350, 250))
        # x 400, 500, 600 and y 300, 400, 500, 600.
        desktop.until(lambda: self.count(RED, plot) == 12, "twelve red dots")

        # The upper edge up by a fifth takes in two rows of three; the name stays between rows.
        for x in (350, 650):
            desktop.drag(*place(x, 650), *place(x, 850))
        desktop.until(lambda: self.count(RED, plot) == 18, "eighteen red dots")

        # And "Delete" takes the region away.
        self.press_in_panel(1065, 118)
        desktop.wait_for_window("Delete population")
        desktop.key("Tab", "space")  # from Cancel to OK
        desktop.until(lambda: self.count(RED, plot) == 0, "the region to go")

    def test_a_killed_program_offers_its_session_again(self):
        desktop = self.desktop
        second = (280, 0, 600, 300)
        self.start(self.file("a.fcs", [(500, 500)]))
        self.wait_for_plot()
        desktop.key("ctrl+h")
        desktop.until(lambda: self.count_black(second) > 40000, "a histogram")
        self.assertGreater(self.count(0xFF0000, second), 10)
        autosave = os.path.join(self.folder.name, "autosave.tessarin")
        desktop.until(lambda: os.path.exists(autosave), "the autosave")
        self.program.kill()
        self.program.wait()

        self.program = desktop.start(self.installed)
        desktop.wait_for_window("Recovery")
        desktop.key("Return")  # Yes
        desktop.until(lambda: self.count(0xFF0000, second) > 10, "the histogram again")
        self.main = desktop.wait_for_window("Tessarin v. 1.2.1")
        self.exit_by_menu("Tab", "space")  # from Cancel to OK
        self.assertEqual(self.program.wait(timeout=20), 0)
        self.assertFalse(os.path.exists(autosave))

    def test_the_program_ends_with_a_word_before_its_memory_is_gone(self):
        desktop = self.desktop
        self.start(self.file("a.fcs", [(500, 500)]))
        self.wait_for_plot()
        desktop.key("ctrl+h")
        desktop.until(lambda: self.count_black((280, 0, 600, 300)) > 40000, "a histogram")
        autosave = os.path.join(self.folder.name, "autosave.tessarin")
        desktop.until(lambda: os.path.exists(autosave), "the autosave")
        with open("/proc/%d/statm" % self.program.pid) as sizes:
            used = int(sizes.read().split()[0]) * resource.getpagesize()
        if used > 1 << 38:
            self.skipTest("a sanitizer has taken all addresses")
        resource.prlimit(self.program.pid, resource.RLIMIT_AS, (used + (8 << 20), -1))
        desktop.key("ctrl+d")
        desktop.wait_for_window("^Tessarin$")
        desktop.key("Return")
        self.assertEqual(self.program.wait(timeout=20), 1)
        self.assertIn(b"tessarin: there is not enough memory", self.program.stderr.read())
        self.assertTrue(os.path.exists(autosave))

    def test_a_tool_runs_from_the_menu_and_stops(self):
        report = os.path.join(self.folder.name, "report.txt")
        lines = ["output.set:" + report, "create.histogram:2", "$i.set:0", "do:100000000",
                 "$i.calc:$i+1", "loop:", "output.write:ended"]
        os.mkdir(os.path.join(self.folder.name, "scripts"))
        with open(os.path.join(self.folder.name, "scripts", "Endless.tsrscript"), "w") as tool:
            tool.write("".join(line + "\r\n" for line in lines))
        self.start(self.file("a.fcs", [(500, 500)]))
        self.wait_for_plot()
        self.desktop.click(194, 9)
        self.desktop.key("Down", "Return")
        stop = (0, 700, 120, 775)  # above the status bar
        self.desktop.until(lambda: self.count(BACKGROUND, stop) < 5000, "the Stop button")
        self.desktop.click(50, 755)
        self.desktop.until(lambda: self.count(BACKGROUND, stop) > 8900, "its end")
        self.assertTrue(os.path.exists(report))
        self.assertEqual(os.path.getsize(report), 0)
        self.exit_by_menu("Tab", "space")  # from Cancel to OK
        self.assertEqual(self.program.wait(timeout=20), 0)

    def test_a_limit_of_file_sizes_is_told_and_ends_nothing(self):
        path = self.file("tube.fcs", [(1, 2)] * 9)
        words = ["--headless", "--save-fcs", "1=" + path + ".new", "--save-sheet", path + ".sheet"]
        run = subprocess.run(
            [PROGRAM, *words, path],
            preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1500, 1500)),
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )
        self.assertEqual(run.returncode, 1)  # and not the number of a signal
        self.assertIn("File too large", run.stderr)
        self.assertTrue(os.path.exists(path + ".sheet"))
        self.assertFalse(os.path.exists(path + ".new"))

    def exit_by_menu(self, *answer):
        self.desktop.click(18, 9)
        self.desktop.key("Up", "Return")
        self.desktop.wait_for_window("Exit the program")
        self.desktop.key(*answer)

    def press_in_panel(self, x, y):
        # The panel slides open under the mouse.
        self.desktop.move(1196, 500)
        self.desktop.until(lambda: self.desktop.picture().at(950, 300) != BACKGROUND, "the panel")
        self.desktop.click(x, y)

    def count(self, color, box):
        return self.desktop.picture().count(color, box)

    def count_black(self, box):
        return self.count(BLACK, box)

    def frame_corner(self):
        """The lower right corner of the first window's frame: the first background beside it."""
        picture = self.desktop.picture()
        x = next((x for x in range(200, 640) if picture.at(x, 400) == BACKGROUND), None)
        y = next((y for y in range(200, 640) if picture.at(100, y) == BACKGROUND), None)
        return (265, y - 2) if x and y else None


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    if missing_programs():
        print("skipped: not installed: " + ", ".join(missing_programs()))
        sys.exit(77)
    unittest.main(verbosity=2)
