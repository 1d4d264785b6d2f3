"""The pages that the program's links lead to, as PHP's own server gives them and Chromium shows them.

    site_test.py LINKS DRIVER PROJECT COPY [TEST ...]

LINKS prints the links of the program, DRIVER plays it; COPY is the folder of pages that the build
has put beside it.
"""

import filecmp
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

sys.dont_write_bytecode = True
from browser import Browser  # noqa: E402
from server import Server  # noqa: E402

LINKS, DRIVER, PROJECT, COPY = (pathlib.Path(path).resolve() for path in sys.argv[1:5])
SITE = PROJECT / "site"
CHECKS = (pathlib.Path(__file__).parent / "page_checks.js").read_text()
CODES = ("gbs", "hrp", "mp", "psd", "sbd")
OVERVIEW, SUPPORT = "/orvanta-overview/", "/support/"
UNKNOWN = "/download.php?type=xyz"
A4 = {"paperWidth": 8.27, "paperHeight": 11.69}  # inches
A3 = {"paperWidth": 11.69, "paperHeight": 16.54}
PAGES = (OVERVIEW, SUPPORT, "/download.php?type=gbs", UNKNOWN)


def links_of_the_program():
    lines = subprocess.run([LINKS], capture_output=True, text=True, check=True).stdout
    return {link["from"]: link for link in map(json.loads, lines.splitlines())}


def address_in_mail(target):
    """What a mail program makes a link of: up to the blank behind it."""
    return re.search(r"http://\S+(?= )", urllib.parse.unquote(target)).group()


def path_of(address):
    parts = urllib.parse.urlsplit(address)
    return urllib.parse.urlunsplit(("", "", parts.path, parts.query, ""))


def text_of(html, element):
    """The text of the first such element."""
    inner = re.search(f"<{element}[^>]*>(.*?)</{element}>", html.decode(), re.DOTALL).group(1)
    plain = re.sub("<[^>]*>", "", inner)
    for entity, sign in (("&lt;", "<"), ("&gt;", ">"), ("&amp;", "&")):
        plain = plain.replace(entity, sign)
    return plain.strip()


def printed(browser, **paper_size):
    """The text of each page that comes out of the printer."""
    with tempfile.NamedTemporaryFile(suffix=".pdf") as paper:
        paper.write(browser.paper(**paper_size))
        paper.flush()
        text = subprocess.run(["pdftotext", "-layout", paper.name, "-"], capture_output=True,
                              text=True, check=True).stdout
    return [" ".join(page.split()) for page in text.split("\f")[:-1]]


class SiteTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = Server(SITE)
        cls.addClassCleanup(cls.server.close)
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def show(self, path, width=1280, height=720):
        self.browser.resize(width, height)
        self.browser.open(path if ":" in path else f"http://{self.server.host}{path}")
        self.browser.evaluate(CHECKS)

    def each_page(self):
        for path in PAGES:
            with self.subTest(page=path):
                self.show(path)
                yield path


class LinksOfTheProgram(SiteTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.links = links_of_the_program()

    def heading_behind(self, address):
        status, html = self.server.get(path_of(address))
        self.assertEqual(status, 200, address)
        return text_of(html, "h1")

    def test_the_overview_button_leads_to_the_presentation(self):
        self.assertEqual(self.heading_behind(self.links["Overview"]["target"]),
                         "SWOT analysis, step by step")

    def test_the_link_in_the_about_box_leads_to_the_support_page(self):
        self.assertEqual(self.heading_behind(self.links["lblSupport"]["target"]), "Support")

    def test_each_invitation_leads_to_a_page_that_names_the_chosen_question_set(self):
        invitations = [link for name, link in self.links.items() if name.startswith("opt")]
        self.assertEqual(len(invitations), len(CODES))
        for link in invitations:
            with self.subTest(link["caption"]):
                self.assertEqual(self.heading_behind(address_in_mail(link["target"])),
                                 link["caption"].replace("&&", "&"))

    def test_all_of_them_are_on_one_host(self):
        hosts = {urllib.parse.urlsplit(address_in_mail(link["target"] + " ")).netloc
                 for link in self.links.values()}
        self.assertEqual(len(hosts), 1)

    def test_a_blank_that_a_mail_program_takes_along_does_no_harm(self):
        self.assertEqual(self.server.get("/download.php?type=mp%20")[0], 200)


class AnUnknownQuestionSet(SiteTest):
    QUERIES = ("", "?type", "?type=", "?type=xyz", "?type=gbs%00", "?type=gbs/../mp",
               "?type[]=gbs", "?type=%3Cscript%3E", "?type=packages")

    def test_is_answered_with_404_and_a_page_that_says_what_to_do(self):
        for query in self.QUERIES:
            with self.subTest(query):
                status, html = self.server.get(f"/download.php{query}")
                self.assertEqual(status, 404)
                self.assertEqual(text_of(html, "h1"), "There is no such question set")
                self.assertNotIn(b"Warning", html)

    def test_leads_on_to_the_five_that_there_are(self):
        self.show(UNKNOWN)
        offered = self.browser.evaluate(
            "[...document.querySelectorAll('main a')].map(link => link.getAttribute('href'))")
        self.assertEqual(offered, [f"download.php?type={code}" for code in CODES])


class Packages(unittest.TestCase):
    """On copies of the pages with other packages beside them."""

    def serve(self, names):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        site = pathlib.Path(folder.name) / "site"
        shutil.copytree(SITE, site)
        (site / "packages").mkdir(exist_ok=True)
        for name in names:
            (site / "packages" / name).write_text(name)
        server = Server(site)
        self.addCleanup(server.close)
        return server

    def offered(self, server):
        html = server.get("/download.php?type=mp")[1].decode()
        return re.findall('href="(packages/[^"]*)"', html)

    def test_the_newest_for_each_system_can_be_downloaded(self):
        server = self.serve(["orvanta_3.13.99_amd64.deb", "orvanta_3.13.100_amd64.deb",
                             "orvanta_3.12.0_amd64.deb", "Orvanta-3.9.0-setup.exe",
                             "Orvanta-3.13.100-setup.exe", "Orvanta-3.13.100-portable.zip",
                             "orvanta-3.13.100 & more.tar.gz", "orvanta-sound_3.13.100_amd64.deb",
                             "checksums.txt"])
        links = self.offered(server)
        self.assertEqual([urllib.parse.unquote(link) for link in links],
                         ["packages/Orvanta-3.13.100-setup.exe",
                          "packages/Orvanta-3.13.100-portable.zip",
                          "packages/orvanta_3.13.100_amd64.deb",
                          "packages/orvanta-sound_3.13.100_amd64.deb",
                          "packages/orvanta-3.13.100 & more.tar.gz"])
        for link in links:
            name = urllib.parse.unquote(link).removeprefix("packages/")
            self.assertEqual(server.get(f"/{link}"), (200, name.encode()))

    def test_the_page_says_so_when_there_are_none(self):
        server = self.serve([])
        self.assertEqual(self.offered(server), [])
        self.assertIn(b"No package can be downloaded here at the moment",
                      server.get("/download.php?type=mp")[1])


class EachPage(SiteTest):
    def test_is_valid_html(self):
        for path in PAGES:
            with self.subTest(page=path):
                html = self.server.get(path)[1]
                said = subprocess.run(["tidy", "-quiet", "-errors", "-utf8"], input=html,
                                      capture_output=True, check=False).stderr.decode()
                # This attribute is younger than the tidy of Debian 12.
                faults = [line for line in said.splitlines() if '"aria-current"' not in line]
                self.assertEqual(faults, [])

    def test_has_a_language_a_title_and_headings_without_a_gap(self):
        for _ in self.each_page():
            self.assertEqual(self.browser.evaluate("document.documentElement.lang"), "en-US")
            self.assertRegex(self.browser.evaluate("document.title"), r"^\S.+ - Orvanta$")
            levels = self.browser.evaluate("headingLevels()")
            self.assertEqual(levels[0], 1)
            self.assertEqual(levels.count(1), 1)
            for before, level in zip(levels, levels[1:]):
                self.assertLessEqual(level, before + 1, levels)

    def test_says_in_words_what_its_pictures_show(self):
        for _ in self.each_page():
            for has_text, text, tells, loaded in self.browser.evaluate("images()"):
                self.assertTrue(has_text)
                self.assertTrue(loaded)
                if tells:
                    self.assertGreater(len(text), 20)

    def test_asks_no_other_host_and_leaves_the_console_empty(self):
        for path in self.each_page():
            # The browser itself tells of the status of the page.
            own = [f"http://{self.server.host}{path}"] if path == UNKNOWN else []
            self.assertEqual(len(self.browser.messages), len(own), self.browser.messages)
            self.assertEqual(self.browser.failures, [])
            for address in self.browser.requests:
                self.assertEqual(urllib.parse.urlsplit(address).netloc, self.server.host)

    def test_can_be_read_by_weak_eyes(self):
        for _ in self.each_page():
            for text, ratio in self.browser.evaluate("textContrasts()"):
                self.assertGreaterEqual(ratio, 4.5, text)

    def test_fits_a_phone_and_a_page_enlarged_four_times(self):
        for path in PAGES:
            for width in (360, 320):
                with self.subTest(page=path, width=width):
                    self.show(path, width, 640)
                    self.assertEqual(
                        self.browser.evaluate("document.documentElement.scrollWidth"), width)

    def test_leads_nowhere_but_to_what_is_there(self):
        for path in PAGES:
            self.show(path)
            for address in self.browser.evaluate("linkAddresses()"):
                with self.subTest(page=path, link=address):
                    self.assertEqual(urllib.parse.urlsplit(address).netloc, self.server.host)
                    status, html = self.server.get(path_of(address))
                    self.assertEqual(status, 404 if path_of(address) == UNKNOWN else 200)
                    place = urllib.parse.urlsplit(address).fragment
                    self.assertIn(f'id="{place}"'.encode() if place else b"", html)

    def test_shows_where_the_keyboard_is(self):
        for _ in self.each_page():
            for name in self.browser.evaluate("reachable()"):
                self.browser.press("Tab")
                self.assertEqual(self.browser.evaluate("focused()"), [name, True])


class Presentation(SiteTest):
    def setUp(self):
        self.show(OVERVIEW)
        self.slides = self.browser.evaluate("slides.length")

    def place(self):
        """The slide that stands at the top of the window, as the page counts."""
        top = self.browser.evaluate(
            "slides.findIndex(slide => Math.abs(slide.getBoundingClientRect().top) < 2) + 1")
        if self.browser.evaluate("window.scrollY") == 0:
            top = 1
        self.assertEqual(self.browser.evaluate(
            "document.querySelector('output span').textContent"), f"{top} of {self.slides}")
        return top

    def places_after(self, *keys):
        places = []
        for key in keys:
            self.browser.press(key)
            places.append(self.place())
        return places

    def test_has_eight_to_ten_slides(self):
        self.assertIn(self.slides, (8, 9, 10))

    def test_each_slide_fits_an_ordinary_window(self):
        heights = self.browser.evaluate("slides.map(slide => slide.offsetHeight)")
        self.assertEqual(heights, [720] * self.slides)

    def test_the_arrow_keys_walk_through_it(self):
        self.assertEqual(self.place(), 1)
        self.assertEqual(self.places_after("ArrowRight", "ArrowRight", "ArrowLeft"), [2, 3, 2])

    def test_the_keys_of_a_remote_control_walk_through_it(self):
        self.assertEqual(self.places_after("PageDown", "PageDown", "PageUp"), [2, 3, 2])

    def test_home_and_end_lead_to_its_ends_and_no_key_beyond(self):
        self.assertEqual(self.places_after("End", "ArrowRight", "Home", "ArrowLeft"),
                         [self.slides, self.slides, 1, 1])

    def test_its_buttons_work_from_the_keyboard(self):
        self.browser.evaluate("controls.querySelectorAll('button')[1].focus()")
        self.assertEqual(self.places_after("Enter", "Enter"), [2, 3])
        self.browser.evaluate("controls.querySelectorAll('button')[0].focus()")
        self.assertEqual(self.places_after("Enter"), [2])

    def test_the_page_keys_read_a_slide_that_is_higher_than_the_window(self):
        self.show(OVERVIEW, 360, 640)
        self.browser.press("ArrowRight")
        before = self.browser.evaluate("current")
        self.browser.press("PageDown")
        self.assertEqual(self.browser.evaluate("current"), before)

    def test_prints_each_slide_on_a_page_of_its_own(self):
        titles = self.browser.evaluate(
            "slides.map(slide => slide.querySelector('h1, h2').textContent)")
        for paper_size in (A4, A3):
            pages = printed(self.browser, **paper_size)
            self.assertEqual(len(pages), len(titles), paper_size)
            for page, title in zip(pages, titles):
                for word in title.split():
                    self.assertIn(word, page)

    def test_is_whole_without_its_script(self):
        self.browser.run_scripts(False)
        self.addCleanup(self.browser.run_scripts, True)
        self.browser.resize(1280, 720)
        self.browser.open(f"http://{self.server.host}{OVERVIEW}")
        pages = printed(self.browser)
        self.assertEqual(len(pages), self.slides)
        shown = self.browser.call("DOM.getDocument")["root"]["nodeId"]
        controls = self.browser.call("DOM.querySelector", nodeId=shown,
                                     selector=".controls[hidden]")
        self.assertNotEqual(controls["nodeId"], 0)


class SupportPage(SiteTest):
    def test_its_example_is_a_question_set_that_the_program_takes(self):
        bank = text_of(self.server.get(SUPPORT)[1], "pre")
        lines = [{"do": "start"}, {"do": "click", "button": "Brainstorm"},
                 {"do": "set", "control": "txtName", "text": "Dana"},
                 {"do": "choose", "option": "optGBS"}, {"do": "click", "button": "BNext"},
                 {"do": "state"}]
        with tempfile.TemporaryDirectory() as folder:
            for name in ("app", "docs"):
                (pathlib.Path(folder) / name).mkdir()
            (pathlib.Path(folder) / "app" / "gbsquestions.txt").write_text(bank)
            answers = subprocess.run(
                [DRIVER, "--app", f"{folder}/app", "--documents", f"{folder}/docs",
                 "--settings", f"{folder}/settings"], input="\n".join(map(json.dumps, lines)),
                capture_output=True, text=True, check=True).stdout.splitlines()
        state = json.loads(answers[-1])["state"]
        self.assertTrue(state["panels"]["fraStrength"])
        self.assertEqual([len(state["questions"][f"{kind}Questions"])
                          for kind in ("strength", "weakness", "opportunity", "threat")], [2] * 4)

    def test_prints_every_answer(self):
        self.show(SUPPORT)
        questions = self.browser.evaluate(
            "[...document.querySelectorAll('h3')].map(heading => heading.textContent)")
        paper = " ".join(printed(self.browser))
        self.assertGreater(len(questions), 15)
        for question in questions:
            self.assertIn(question, paper)


class InstalledCopy(SiteTest):
    """What the program opens while its host is a name that leads nowhere."""

    FILES = ("orvanta-overview/index.html", "support/index.html")

    def test_holds_the_pages_as_they_are_on_the_web(self):
        def names(folder):
            return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}
        self.assertEqual(names(COPY), {name for name in names(SITE) if not name.endswith(".php")
                                       and not name.startswith("packages/")})
        for name in names(COPY):
            self.assertTrue(filecmp.cmp(COPY / name, SITE / name, shallow=False), name)

    def test_needs_no_server(self):
        for name in self.FILES:
            with self.subTest(name):
                self.show((COPY / name).as_uri())
                self.assertEqual(self.browser.messages + self.browser.failures, [])
                self.assertTrue(all(loaded for *_, loaded in self.browser.evaluate("images()")))
                for address in self.browser.evaluate("linkAddresses()"):
                    file = urllib.parse.unquote(urllib.parse.urlsplit(address).path)
                    self.assertTrue(pathlib.Path(file).is_file(), address)


class Pictures(unittest.TestCase):
    def test_are_those_of_the_program(self):
        for kind in ("strength", "weakness", "opportunity", "threat"):
            self.assertEqual((SITE / "pictures" / f"{kind}.svg").read_bytes(),
                             (PROJECT / "art" / f"row_{kind}.svg").read_bytes())
        self.assertEqual((SITE / "pictures" / "mark.svg").read_bytes(),
                         (PROJECT / "art" / "logo.svg").read_bytes())

    def test_show_the_texts_of_now(self):
        analyze, marketing = ((PROJECT / "data" / name).read_text("cp1252")
                              for name in ("analyzequestions.txt", "mpquestions.txt"))
        asked = next(line for line in marketing.splitlines() if "?" in line)
        self.assertEqual((PROJECT / "tests/site/pictured_texts.txt").read_text("cp1252"),
                         f"{analyze}{asked}\n",
                         "take the pictures anew with scripts/pictures.sh")

    def test_stay_small_enough_to_be_carried_with_the_program(self):
        size = sum(path.stat().st_size for path in SITE.rglob("*") if path.is_file())
        self.assertLess(size, 1_500_000)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]])
