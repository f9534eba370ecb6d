"""A real X display without a screen, and a person's hands on it: mouse, keys and eyes.

Needs the programs Xvfb, xdotool and xwd.
"""

import os
import shutil
import struct
import subprocess
import tempfile
import time

NEEDED = ("Xvfb", "xdotool", "xwd")


def missing_programs():
    return [name for name in NEEDED if shutil.which(name) is None]


class Picture:
    """What stands on the display; pixels are 0xRRGGBB."""

    def __init__(self, dump):
        header = struct.unpack(">25I", dump[:100])
        self.width, self.height = header[4], header[5]
        self._size, self._stride, colors = header[11] // 8, header[12], header[19]
        self._start = header[0] + colors * 12
        self._dump = dump

    def row(self, y, left, right):
        start = self._start + y * self._stride
        part = self._dump[start + left * self._size : start + right * self._size]
        size = self._size
        return [b | g << 8 | r << 16 for b, g, r in zip(part[0::size], part[1::size], part[2::size])]

    def at(self, x, y):
        return self.row(y, x, x + 1)[0]

    def count(self, color, box):
        """Pixels of that colour inside left, top, right, bottom; the last two not included."""
        left, top, right, bottom = box
        return sum(self.row(y, left, right).count(color) for y in range(top, bottom))


class Desktop:
    """Starts a display of that size; a context manager that ends it and all programs on it."""

    def __init__(self, width=1280, height=900):
        self._size = "%dx%dx24" % (width, height)
        self._programs = []

    def __enter__(self):
        read, write = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", self._size, "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[write],
            stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()  # the whole line: the server gives up half way
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.env = dict(os.environ, DISPLAY=":" + number, QT_QPA_PLATFORM="xcb")
        self.env.pop("WAYLAND_DISPLAY", None)
        self._folder = tempfile.TemporaryDirectory()
        self.env["XDG_RUNTIME_DIR"] = self._folder.name
        return self

    def __exit__(self, *_):
        for program in self._programs:
            program.kill()
            program.wait()
            program.stderr.close()
        self._server.terminate()
        self._server.wait()
        self._folder.cleanup()

    def start(self, *words):
        program = subprocess.Popen(words, env=self.env, stderr=subprocess.PIPE)
        self._programs.append(program)
        return program

    def do(self, *words):
        return subprocess.run(
            ["xdotool", *map(str, words)], env=self.env, check=True, capture_output=True, text=True
        ).stdout

    def windows(self, title):
        """Ids of the visible windows whose title matches."""
        found = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", title],
            env=self.env,
            capture_output=True,
            text=True,
        )
        return found.stdout.split()

    def wait_for_window(self, title, seconds=20):
        """Waits for it, gives it the keyboard as a window manager would, and returns its id."""
        self.until(lambda: self.windows(title), "a window " + title, seconds)
        window = self.windows(title)[-1]
        self.do("windowfocus", "--sync", window)
        return window

    def picture(self):
        dump = subprocess.run(["xwd", "-root", "-silent"], env=self.env, check=True, capture_output=True)
        return Picture(dump.stdout)

    def until(self, holds, what, seconds=10):
        """Waits until holds() is true and returns what it gave."""
        end = time.monotonic() + seconds
        while True:
            result = holds()
            if result:
                return result
            if time.monotonic() > end:
                raise AssertionError("waited in vain for " + what)
            time.sleep(0.05)

    def move(self, x, y):
        # Not --sync, which waits for ever when the mouse is there already.
        self.do("mousemove", x, y)

    def click(self, x, y, button=1):
        self.move(x, y)
        self.do("click", button)

    def drag(self, x1, y1, x2, y2, steps=8):
        self.move(x1, y1)
        self.do("mousedown", 1)
        for i in range(1, steps + 1):
            self.move(x1 + (x2 - x1) * i // steps, y1 + (y2 - y1) * i // steps)
            time.sleep(0.02)
        self.do("mouseup", 1)

    def key(self, *keys):
        self.do("key", "--clearmodifiers", *keys)
