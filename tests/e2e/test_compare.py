"""Comparing two stations: in all formats, in a browser, and with git."""
import html.parser
import json
import shutil
import subprocess
import unittest

from desk.commandline import EXAMPLES, PROGRAM, Home

SAME, DIFFERENT, TROUBLE = 0, 1, 2
MARKUP = "<b>Pumps</b><script>document.title='taken over'</script> & \"more\""


class Compare(Home):
    def setUp(self):
        super().setUp()
        self.first = self.station("bottling-filler", "first")
        self.second = self.station("bottling-filler", "second")

    def change(self, path, edit):
        data = json.loads(path.read_text(encoding="utf-8"))
        places = [place for rack in data["racks"] for place in rack["places"] if "module" in place]
        edit(data, places)
        path.write_text(json.dumps(data), encoding="utf-8")

    def compare(self, *arguments, code=DIFFERENT, **more):
        done = self.run_command("compare", *arguments, "--lang", "en", **more)
        self.assertEqual((done.returncode, done.stderr == ""), (code, code != TROUBLE), done.stderr + done.stdout)
        return done.stderr if code == TROUBLE else done.stdout

    def comment(self, text):
        def edit(_, places):
            places[1]["module"]["comment"] = text
        self.change(self.second, edit)


class Formats(Compare):
    def test_codes_are_those_of_diff_and_what_is_ignored_is_the_same(self):
        self.assertIn("are the same", self.compare(self.first, self.second, code=SAME))
        self.comment("\x1b[2Jother\nline")
        self.assertIn("->  [2Jother line\n", self.compare(self.first, self.second))
        self.compare(self.first, self.second, "--ignore", "addresses,comment", code=SAME)
        for wrong in ([self.first, self.folder / "missing"], [self.first], ["-", "-"],
                      [self.first, self.second, "--html", self.folder / "no" / "page.html"],
                      ["--git", "HEAD", self.first]):
            self.assertTrue(self.compare(*wrong, code=TROUBLE).startswith("quillon-ed: "))

    def test_standard_input_is_a_station(self):
        self.comment("other")
        with open(self.first, encoding="utf-8") as text:
            done = subprocess.run([PROGRAM, "compare", "--md", "-", self.second], env=self.environment(), stdin=text,
                                  capture_output=True, text=True, timeout=60, check=False)
        self.assertIn("| other |", done.stdout)

    def test_lines_fit_the_terminal(self):
        self.comment("word " * 60)
        run = f"stty cols 60; exec {PROGRAM} compare {self.first} {self.second}"
        done = subprocess.run(["script", "-qc", run, "/dev/null"], env=self.environment(), stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual(max(len(line) for line in done.stdout.splitlines()), 60)


class Page(html.parser.HTMLParser):
    """What a browser has made of a page: its cells, and every address that it names."""

    def __init__(self, document):
        super().__init__()
        self.cells, self.addresses, self.tags, self.title, self.current = [], [], set(), "", None
        self.feed(document)

    def handle_starttag(self, tag, attributes):
        self.current = tag
        self.tags.add(tag)
        self.addresses += [value for name, value in attributes if name in ("src", "href")]
        if tag in ("td", "th"):
            self.cells.append("")

    def handle_data(self, data):
        if self.current in ("td", "th"):
            self.cells[-1] += data
        if self.current == "title":
            self.title += data

    def handle_endtag(self, _):
        self.current = None


class InABrowser(Compare):
    def browse(self, *arguments):
        return subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                               f"--user-data-dir={self.home}/browser", *arguments, f"file://{self.folder}/page.html"],
                              env=self.environment(), capture_output=True, text=True, encoding="utf-8", timeout=120,
                              check=True).stdout

    def test_a_page_shows_foreign_texts_as_they_were_written_and_needs_nothing_else(self):
        def edit(data, places):
            data["name"] = MARKUP
            places[1]["module"]["comment"] = MARKUP
        self.change(self.second, edit)
        self.assertEqual(self.compare(self.first, self.second, "--html", "page.html"), "")
        page = Page(self.browse("--dump-dom"))
        self.assertEqual(page.title, "Comparison of two stations")
        self.assertEqual(page.cells.count(MARKUP), 2)
        self.assertFalse({"b", "script"} & page.tags)
        self.assertEqual([address.split(",")[0] for address in page.addresses], ["data:image/svg+xml;base64"] * 2)
        # A picture that could not be read would be as small as its text.
        self.browse("--window-size=400,1200", f"--screenshot={self.folder}/shot.png")
        self.assertGreater((self.folder / "shot.png").stat().st_size, 50_000)


class WithGit(Compare):
    def git(self, *arguments, code=0):
        environment = self.environment()
        environment.update(GIT_CONFIG_NOSYSTEM="1", GIT_PAGER="cat", GIT_AUTHOR_NAME="A", GIT_AUTHOR_EMAIL="a@b.invalid",
                           GIT_COMMITTER_NAME="A", GIT_COMMITTER_EMAIL="a@b.invalid")
        done = subprocess.run(["git", "-C", str(self.folder), *arguments], env=environment, capture_output=True,
                              text=True, encoding="utf-8", timeout=60, check=False)
        self.assertEqual(done.returncode, code, done.stderr)
        return done.stdout

    def setUp(self):
        super().setUp()
        shutil.copy(self.first, self.second)
        self.git("init", "-q")
        self.git("add", "second.station.json")
        self.git("commit", "-qm", "Begin")
        self.comment("other")

    def test_what_docs_git_md_says_works(self):
        self.git("config", "difftool.quillon.cmd", f'{PROGRAM} compare --lang en "$LOCAL" "$REMOTE"')
        self.assertIn("-> other", self.git("difftool", "--no-prompt", "--tool=quillon"))

        self.assertIn("-> other", self.compare("--git", "HEAD", "second.station.json"))
        self.assertIn("git: fatal: ", self.compare("--git", "v1.2", self.second, code=TROUBLE))
        # As a check: comments may change, and the report is kept whatever it says.
        self.compare("--git", "HEAD", self.second, "--ignore", "comment,name", code=SAME)
        self.compare("--git", "HEAD", self.second, "--html", "report.html")
        self.assertTrue((self.folder / "report.html").exists())

        (self.folder / ".gitattributes").write_text("*.station.json diff=quillon\n", encoding="utf-8")
        self.git("config", "diff.quillon.textconv", f"{PROGRAM} list --details --lang en")
        lines = self.git("diff", "-U0", "--", "second.station.json").splitlines()
        changed = [line.lstrip("+ ") for line in lines if line.startswith("+") and not line.startswith("+++")]
        self.assertEqual(changed, ["Comment: other"])


if __name__ == "__main__":
    unittest.main()
