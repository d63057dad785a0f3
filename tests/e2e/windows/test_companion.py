"""The companion for Windows as its users meet it, beside the one of this machine. companion.py says what it needs."""

import os
import tempfile
import unittest

import companion

EXAMPLES = os.path.join(os.path.dirname(__file__), "..", "..", "..", "examples")
BAD_NAME = b"run-time error 52: Bad file name or number\n"
NOT_FOUND = b"run-time error 53: File not found\n"
DISK_FULL = b"run-time error 61: Disk full\n"
NO_ACCESS = b"run-time error 75: Path/File access error\n"
NO_PATH = b"run-time error 76: Path not found\n"


def example(name):
    with open(os.path.join(EXAMPLES, name + ".ORB"), "rb") as file:
        return file.read()


class Outcome:
    def __init__(self, status, out, err):
        self.status, self.out, self.err = status, out, err

    def __eq__(self, other):
        return (self.status, self.out, self.err) == (other.status, other.out, other.err)

    def __repr__(self):
        return f"{self.status}, {self.out!r:.300}, {self.err!r:.300}"


class CompanionTest(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = place.name

    def outcome_of(self, program, words, out=None):
        # Not pipes: Wine's own processes keep them open for a while after the end of the program.
        with tempfile.TemporaryFile() as said, tempfile.TemporaryFile() as complaints:
            status = companion.run(program, words, self.folder, out or said, complaints)
            said.seek(0)
            complaints.seek(0)
            return Outcome(status, said.read(), complaints.read())

    def here(self, *words):
        return self.outcome_of(companion.HERE, words)

    def there(self, *words, out=None):
        return self.outcome_of(companion.THERE, words, out)

    def store(self, name, content):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(content)

    def stored(self, name):
        with open(os.path.join(self.folder, name), "rb") as file:
            return file.read()

    def store_examples(self):
        self.store("good.ORB", example("development-entry"))
        self.store("old.ORB", b"ORBY_101\r\n")
        depth = b"\r\n650\r\n162\r\n"
        self.assertIn(depth, example("development-entry"))
        self.store("light.ORB", example("development-entry").replace(depth, b"\r\n650\r\n99\r\n"))


class Streams(CompanionTest):
    def test_a_line_of_the_report_ends_once(self):
        self.store_examples()

        report = self.there("report", "good.ORB")

        self.assertTrue(report.out.startswith(b"ORBY module build: 201030\r\n"))
        self.assertNotIn(b"\r\r", report.out)
        self.assertEqual(report, self.here("report", "good.ORB"))

    def test_statuses_and_messages_are_those_of_this_machine(self):
        self.store_examples()
        cases = (
            (0, "--help"), (0, "validate", "good.ORB"), (0, "curve", "0", "good.ORB"),
            (1,), (1, "reprot", "good.ORB"), (1, "report", "--page", "2", "good.ORB"),
            (2, "report", "old.ORB"), (2, "report", "good.ORB", "old.ORB"),
            (3, "report", "missing.ORB", "old.ORB"), (3, "live", "--config", "none.INI", "good.ORB"),
            (4, "validate", "light.ORB"), (4, "report", "--validate", "light.ORB"))

        for status, *words in cases:
            with self.subTest(words=words):
                outcome = self.there(*words)
                self.assertEqual(outcome.status, status)
                self.assertEqual(outcome, self.here(*words))

    def test_output_that_cannot_be_written_is_an_error(self):
        self.store_examples()

        with open("/dev/full", "wb") as full:
            outcome = self.there("report", "good.ORB", out=full)

        self.assertEqual((outcome.status, outcome.err), (3, DISK_FULL))


class Arguments(CompanionTest):
    def test_names_have_letters_of_every_script_and_blanks(self):
        self.store("Süd Ж/Stollen ä 中.ORB", example("weak-roof"))
        words = ("report", "--name", "Пласт 7", "Süd Ж/Stollen ä 中.ORB")

        report = self.there(*words)

        self.assertIn("Project File: Пласт 7\r\n".encode(), report.out)
        self.assertEqual(report, self.here(*words))

    def test_wildcards_are_left_as_they_are(self):
        self.store_examples()

        for name in ("*.ORB", "goo?.ORB"):
            with self.subTest(name=name):
                self.assertEqual(self.there("report", name), Outcome(3, b"", BAD_NAME))

    def test_blanks_and_quotes_stay_in_an_argument(self):
        self.store_examples()

        report = self.there("report", "--page", "0", "--name", 'north "A"  end\\', "good.ORB")

        self.assertIn(b'Project File: north "A"  end\\\r\n', report.out)


class Files(CompanionTest):
    def test_a_project_saved_on_one_system_is_read_on_the_other(self):
        for name in ("weak-roof", "australian-grade-metric"):
            with self.subTest(name=name):
                self.store("panel.ORB", example(name))
                self.here("convert", "panel.ORB", "here.ORB")
                self.there("convert", "panel.ORB", "there.ORB")

                self.assertEqual(self.stored("there.ORB"), self.stored("here.ORB"))
                live = self.here("live", "there.ORB")
                self.assertEqual(live.status, 0)
                self.assertEqual(self.there("live", "here.ORB"), live)

    def test_a_configuration_gives_the_same_defaults_on_both(self):
        self.store_examples()
        configuration = ("[ORBYDefaults]\r\nDefaultCMRR=45\r\n[ORBYBoltParams]\r\nDefaultCableIndexENG=0\r\n"
                         "DefaultCableCapArrayENG0=40\r\nDefaultCableDiamArrayENG0=0.6\r\n").encode()
        self.store("Süd.INI", configuration)

        live = self.there("live", "--config", "Süd.INI", "good.ORB")

        self.assertIn(b"txtSupportCapEntry1=16.0\n", live.out)
        self.assertEqual(live, self.here("live", "--config", "Süd.INI", "good.ORB"))
        self.assertEqual(self.stored("Süd.INI"), configuration)

    def test_a_file_is_replaced_and_nothing_is_left_beside_it(self):
        self.store("panel.ORB", example("weak-roof"))

        outcome = self.there("convert", "panel.ORB", "panel.ORB")

        self.assertEqual(outcome.status, 0)
        self.assertTrue(self.stored("panel.ORB").startswith(b"ORBY_105\r\n 1 \r\n"))
        self.assertEqual(os.listdir(self.folder), ["panel.ORB"])


class Paths(CompanionTest):
    def setUp(self):
        super().setUp()
        self.store("panel.ORB", example("weak-roof"))

    def test_a_path_has_300_characters(self):
        path = "ä" * 100 + "/" + "Ж" * 100 + "/" + "n" * 96 + ".ORB"
        os.makedirs(os.path.join(self.folder, os.path.dirname(path)))
        long = f"Z:{self.folder}/{path}".replace("/", "\\")

        self.assertEqual(self.there("save", "panel.ORB", long), Outcome(0, b"", b""))

        self.assertEqual(self.there("live", long), self.here("live", "panel.ORB"))

    def test_a_path_has_separators_of_either_kind(self):
        os.mkdir(os.path.join(self.folder, "north"))

        for path in ("north/a.ORB", "north\\b.ORB", ".\\north\\..\\north/c.ORB"):
            with self.subTest(path=path):
                self.assertEqual(self.there("save", "panel.ORB", path), Outcome(0, b"", b""))
        self.assertEqual(sorted(os.listdir(os.path.join(self.folder, "north"))), ["a.ORB", "b.ORB", "c.ORB"])

    def test_a_path_starts_in_the_working_folder_of_a_drive(self):
        self.assertEqual(self.there("save", "panel.ORB", "Z:saved.ORB"), Outcome(0, b"", b""))

        self.assertTrue(self.stored("saved.ORB").startswith(b"ORBY_105\r\n"))

    def test_a_path_that_is_no_file_is_refused_in_clear_words(self):
        cases = (
            ("NUL", BAD_NAME), ("COM1", BAD_NAME), ("con.txt", BAD_NAME), ("Z:aux.ORB", BAD_NAME),
            ("panel.ORB.", BAD_NAME), ("panel.ORB ", BAD_NAME), ("panel.ORB:old", BAD_NAME), ("a|b.ORB", BAD_NAME),
            ("n" * 256, BAD_NAME), ("\\\\.\\C:", BAD_NAME),
            ("C:\\", NO_ACCESS), ("C:\\windows", NO_ACCESS),
            ("Q:\\panel.ORB", NO_PATH), ("nowhere\\panel.ORB", NO_PATH), ("panel.ORB\\panel.ORB", NO_PATH),
            ("\\\\no-such-server\\plans\\panel.ORB", NO_PATH))

        for path, message in cases:
            with self.subTest(path=path):
                self.assertEqual(self.there("live", path), Outcome(3, b"", message))
                self.assertEqual(self.there("save", "panel.ORB", path), Outcome(3, b"", message))
        self.assertEqual(self.there("live", "missing.ORB"), Outcome(3, b"", NOT_FOUND))
        self.assertEqual(os.listdir(self.folder), ["panel.ORB"])
        self.assertEqual(self.stored("panel.ORB"), example("weak-roof"))


if __name__ == "__main__":
    unittest.main()
