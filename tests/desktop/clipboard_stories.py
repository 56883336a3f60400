# SPDX-License-Identifier: MIT
"""Other programs that make trouble: a clipboard owner that hangs, tips and boxes at the start, companions."""

import http.server
import os
import signal
import subprocess
import threading
import unittest

from desk import PROGRAMS, Story, clipboard_becomes, keys, type_text, wait_for

WAITING = "Waiting for the clipboard... Esc ends the wait"
NO_ANSWER = "The clipboard did not answer"


def visible(title):
    """The ids of the windows on the screen with a title."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], capture_output=True)
    return found.stdout.decode().split()


class Owner:
    """A program that owns a selection and can be made to hang."""

    def __init__(self, text, selection="clipboard"):
        self.process = subprocess.Popen(["xclip", "-quiet", "-selection", selection, "-in"], stdin=subprocess.PIPE,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.process.stdin.write(text.encode())
        self.process.stdin.close()
        if selection == "clipboard":
            clipboard_becomes(text)

    def hang(self):
        self.process.send_signal(signal.SIGSTOP)

    def goes_on(self):
        self.process.send_signal(signal.SIGCONT)

    def ends(self):
        self.process.kill()
        self.process.wait()


class ClipboardStories(Story):
    def owner(self, *text):
        owner = Owner(*text)
        self.addCleanup(owner.ends)
        return owner

    def test_an_owner_that_hangs_holds_up_no_start_and_no_paste(self):
        self.settings.write("Tolvo", r"PowerButtons\Button 1", "Name", "Paste")
        self.settings.write("Tolvo", r"PowerButtons\Button 1\1", "Token", "pbPST")
        owner = self.owner("foreign")
        owner.hang()
        run = self.start(None)
        run.status_becomes(WAITING)
        keys("Escape")
        run.status_becomes(NO_ANSWER)
        run.text_becomes("")
        type_text("typed")
        run.text_becomes("typed")
        # Every way of asking for the clipboard: the wait is announced, Esc ends it, and all is as it was.
        ways = {"Refresh": lambda: keys("alt+f"), "Ctrl-V": lambda: keys("ctrl+v"), "Shift-Insert": lambda: keys("shift+Insert"),
                "the menu": lambda: (run.click_on(run.text_node(), 3), keys("p")), "a PowerButton": lambda: keys("ctrl+1")}
        for way, ask in ways.items():
            with self.subTest(way):
                ask()
                run.status_becomes(WAITING)
                keys("Escape")
                run.status_becomes(NO_ANSWER)
                self.assertEqual(run.text(), "typed")
        keys("ctrl+v")
        run.status_becomes(WAITING)
        owner.goes_on()
        run.text_becomes("typedforeign")
        owner.hang()
        keys("alt+q")  # nothing is lost without a question
        run.box_says("Changes have been made to the text")

    def test_the_wait_ends_by_itself(self):
        self.owner("foreign").hang()
        run = self.start(None)
        run.status_becomes(WAITING)
        run.status_becomes(NO_ANSWER)

    def test_a_middle_click_waits_no_longer(self):
        owner = self.owner("middle", "primary")
        run = self.start("text")
        run.click_on(run.text_node(), 2)
        run.text_becomes("textmiddle")
        owner.hang()
        run.click_on(run.text_node(), 2)
        run.status_becomes(WAITING)
        keys("Escape")
        run.status_becomes(NO_ANSWER)

    def test_boxes_come_before_the_tips(self):
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "1")
        run = self.start("x" * 65536, wait=False)
        run.box_says("The text on the Clipboard exceeds the number of characters that Tolvo")
        wait_for(lambda: self.settings.programs("Advisor.exe"), "the tips to be started")
        for window in visible("^Tolvo$"):  # the box has no parent
            self.assert_has_icon(window)
        self.assertEqual(visible("Tips for Tolvo"), [])
        keys("Return")
        self.assert_has_icon(wait_for(lambda: visible("Tips for Tolvo"), "the tips")[0])
        run.window()
        # The program's output ends with the program, whoever goes on.
        keys("alt+d")
        self.assertEqual(run.said(), "")
        wait_for(lambda: not self.settings.programs("Advisor.exe"), "the tips to leave with the run")

    def assert_has_icon(self, window):
        reply = subprocess.run(["xprop", "-id", window, "_NET_WM_ICON"], capture_output=True, check=True)
        self.assertIn(b"CARDINAL", reply.stdout, window)


class Updates(http.server.BaseHTTPRequestHandler):
    """Knows one version of the program."""
    version = "0.1"

    def do_GET(self):
        self.send_response(200)
        self.end_headers()
        self.wfile.write(f'{{"version": "{self.version}"}}'.encode())

    def log_message(self, *_):
        pass


class CompanionStories(Story):
    def setUp(self):
        super().setUp()
        server = http.server.HTTPServer(("127.0.0.1", 0), Updates)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        self.address = f"http://127.0.0.1:{server.server_port}/"

    def refresh(self, *switches):
        return subprocess.Popen([os.path.join(PROGRAMS, "Refresher.exe"), *switches],
                                env={**self.settings.environment(), "TOLVO_UPDATE_URL": self.address})

    def end_of(self, name):
        def gone():
            for program in self.settings.programs(name):
                os.kill(program, signal.SIGTERM)
            return not self.settings.programs(name)

        wait_for(gone, f"the end of {name}")

    def test_quiet_shows_a_newer_version_alone_and_check_now_always_answers(self):
        Updates.version = "0.1"
        self.assertEqual(self.refresh("/update", "/quiet").wait(20), 0)
        Updates.version = "99.0"
        found = self.refresh("/update", "/quiet")
        wait_for(lambda: visible("Tolvo updates"), "the new version")
        found.terminate()
        found.wait()
        Updates.version = "0.1"
        for address in (self.address, ""):
            run = self.start("text", TOLVO_UPDATE_URL=address)
            keys("ctrl+o")
            run.active("Options")
            run.page("General")
            run.click("Check now")
            wait_for(lambda: visible("Tolvo updates"), "the answer")
            self.end_of("Refresher.exe")
            run.kill()

    def test_a_second_look_at_the_statistics_raises_the_first(self):
        tally = os.path.join(PROGRAMS, "Tally.exe")
        first = subprocess.Popen([tally], env=self.settings.environment())
        self.addCleanup(first.wait)
        self.addCleanup(first.terminate)
        window = wait_for(lambda: visible("Tolvo statistics"), "the statistics")
        self.start("text")  # stands in front
        self.assertEqual(subprocess.run([tally], env=self.settings.environment(), timeout=20).returncode, 0)
        wait_for(lambda: subprocess.run(["xdotool", "getactivewindow"], capture_output=True).stdout.decode().split() == window,
                 "the first window in front")
        self.assertEqual(visible("Tolvo statistics"), window)


if __name__ == "__main__":
    unittest.main()
