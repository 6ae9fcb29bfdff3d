"""What players have handed in: taken in as far as nobody has to decide anything, and never unseen by the windows."""

import email.message
import fcntl
import os
import random
import unittest

from pools import Folder, faults, office_pool, sample_pool, selection, setup_file

DONE, FAULTS_FOUND = 0, 1


def bracket(seed=1):
    return office_pool.bracket(random.Random(seed), {})


class Import(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)
        self.folder.write("POOLSTART.THS", setup_file())
        self.inbox = Folder(self)

    def hand_in(self, name="ann.THC", player="Ann Smith", initials="AS", picks=None, total="150"):
        self.inbox.write(name, selection(picks or bracket(), initials, player, total))
        return self.inbox.path / name

    def imports(self, *files):
        return self.folder.run("import", *files)

    def test_a_new_entry_becomes_a_selection_and_a_player(self):
        done = self.imports(self.hand_in())
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertEqual(self.folder.read("Ann Smith_AS.THC"), self.inbox.read("ann.THC"))
        self.assertIn(b'"Ann Smith,AS', self.folder.read("PLAYERNAMES.CSV"))
        self.assertTrue(done.stdout.startswith(b"1 of 1 entry imported.\r\n"), done.stdout)

    def test_a_folder_and_mails_are_read(self):
        self.hand_in()
        message = email.message.EmailMessage()
        message["From"], message["Subject"] = "bob@example.org", "My bracket"
        message.set_content("Here it is.")
        lines = selection(bracket(2), "BJ", "Bob Jones", "140")
        message.add_attachment("".join(line + "\r\n" for line in lines).encode("cp1252"), maintype="application",
                               subtype="octet-stream", filename="bob.THC")
        self.inbox.write("mail.eml", message.as_bytes())
        done = self.imports(self.inbox.path)
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertEqual(sorted(name for name in self.folder.contents() if name.endswith(".THC")),
                         ["Ann Smith_AS.THC", "Bob Jones_BJ.THC"])
        self.assertIn(b"bob@example.org", self.folder.read("PLAYERNAMES.CSV"))

    def test_the_same_again_is_no_fault_and_changes_nothing(self):
        file = self.hand_in()
        self.imports(file)
        before = self.folder.contents()
        done = self.imports(file)
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertEqual(self.folder.contents(), before)

    def test_what_is_not_ticked_at_first_is_refused_with_its_reason(self):
        picks = bracket()
        del picks[126]
        incomplete = self.hand_in("incomplete.THC", "Cleo Dean", "CD", picks)
        complete = self.hand_in()
        done = self.imports(incomplete, complete)
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertEqual(faults(done),
                         ["Row 1 (Cleo Dean, incomplete.THC) is not imported: New. Incomplete: 62 of 63 picks."])
        self.assertIn("Ann Smith_AS.THC", self.folder.contents())
        self.assertNotIn("Cleo Dean_CD.THC", self.folder.contents())

    def test_of_several_for_one_player_the_latest_is_taken_and_no_fault(self):
        first = self.hand_in("1.THC")
        second = self.hand_in("2.THC", picks=bracket(2))
        os.utime(first, (1_000_000_000, 1_000_000_000))
        for _ in range(2):  # the second time it is there already
            done = self.imports(second, first)
            self.assertEqual((done.returncode, done.stderr), (DONE, b""))
            self.assertEqual(self.folder.read("Ann Smith_AS.THC"), self.inbox.read("2.THC"))

    def test_doubtful_entries_are_the_organisers_to_decide(self):
        self.folder.write("Ann Smith_AS.THC", b"half of a selection")
        before = self.folder.contents()
        done = self.imports(self.hand_in())
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertEqual(len(faults(done)), 1)
        self.assertEqual(self.folder.contents(), before)

    def test_late_entries_are_the_organisers_to_decide(self):
        self.folder.write("TALLYHOOP.THS", selection(office_pool.results(), "X", "FinalResults"))
        before = self.folder.contents()
        done = self.imports(self.hand_in())
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertEqual(len(faults(done)), 1)
        self.assertIn("Late.", faults(done)[0])
        self.assertEqual(self.folder.contents(), before)

    def test_each_refused_entry_is_reported(self):
        self.inbox.write("junk.txt", b"Hello, I have no bracket.")
        done = self.imports(self.inbox.path / "junk.txt", self.inbox.path / "missing.THC")
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertEqual(len(faults(done)), 2)
        self.assertIn("junk.txt", faults(done)[0])
        self.assertIn("missing.THC", faults(done)[1])

    def test_the_demo_pool_takes_nothing(self):
        (self.folder.path / "POOLSTART.THS").unlink()
        sample_pool(self.folder)
        before = self.folder.contents()
        done = self.imports(self.hand_in())
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertEqual(self.folder.contents(), before)

    def test_nothing_is_written_while_the_windows_have_the_folder_open(self):
        before = self.folder.contents()
        held = os.open(self.folder.path, os.O_RDONLY | os.O_DIRECTORY)
        self.addCleanup(os.close, held)
        fcntl.flock(held, fcntl.LOCK_EX)
        done = self.imports(self.hand_in())
        self.assertEqual((done.returncode, done.stdout), (FAULTS_FOUND, b""))
        self.assertEqual(len(faults(done)), 1)
        self.assertIn("open", faults(done)[0])
        self.assertEqual(self.folder.contents(), before)
        self.assertEqual(self.folder.run("standings").returncode, FAULTS_FOUND, "for there are no selections")
        fcntl.flock(held, fcntl.LOCK_UN)
        self.assertEqual(self.imports(self.hand_in()).returncode, DONE)


if __name__ == "__main__":
    unittest.main()
