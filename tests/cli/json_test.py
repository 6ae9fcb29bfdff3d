"""Figures as JSON: their values, and the schemas that promise what programs can rely on."""

import copy
import json
import unittest

import jsonschema

from pools import PRIZES, TESTS, Folder, sample_pool, setup_file, small_field, small_pool

SCHEMAS = TESTS.parent / "docs/schemas"


class Figures(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)

    def figures(self, verb, *words):
        done = self.folder.run(verb, "--json", *words)
        figures = json.loads(done.stdout.decode("utf-8"))
        self.validate(verb, figures)
        return figures

    def validate(self, verb, figures):
        schema = json.loads((SCHEMAS / f"{verb}.json").read_text("utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        jsonschema.Draft202012Validator(schema).validate(figures)

    def test_the_outlook_of_the_helps_example(self):
        sample_pool(self.folder)
        outlook = self.figures("outlook")
        players = outlook.pop("players")
        # Three games are open, 2 * 2 * 2 ways for them to end, and the Prophet is first in each.
        self.assertEqual(outlook, {"outcomes": "8", "exact": True, "weights": "alike"})
        self.assertEqual(players[0], {
            "file": "Demo Prophet_DP.THC", "name": "DP, Demo Prophet", "points": 80, "possible": 120,
            "firstAlone": "8", "firstShared": "0", "share": 1, "best": 1, "worst": 1, "verdict": "Clinched"})
        self.assertEqual(players[2], {
            "file": "Demo Halfway_DH.THC", "name": "DH, Demo Halfway", "points": 55, "possible": 67,
            "firstAlone": "0", "firstShared": "0", "share": 0, "best": 3, "worst": 3, "verdict": "Out"})
        self.assertEqual([player["name"] for player in players],
                         ["DP, Demo Prophet", "DF, Demo Favorite", "DH, Demo Halfway", "DL, Demo Longshot"])

    def test_shares_are_parts_of_one(self):
        small_pool(self.folder)  # tests/approved/small/OUTLOOK.TXT: 87.5 and 12.5 percent, never shared
        self.folder.write("POOLSTART.THS", small_field())
        players = self.figures("outlook")["players"]
        self.assertEqual([player["share"] for player in players], [0.875, 0.125, 0, 0])
        self.assertEqual([player["firstAlone"] for player in players], ["7", "1", "0", "0"])

    def test_other_weights_leave_the_counts(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", small_field())
        outlook = self.figures("outlook", "--weights", "picks")
        self.assertEqual((outlook["weights"], outlook["exact"]), ("picks", True))
        self.assertEqual([player["firstAlone"] for player in outlook["players"]], ["7", "1", "0", "0"])

    def test_a_forecast_has_chances_instead_of_counts(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", small_field())
        (self.folder.path / "TALLYHOOP.THS").unlink()
        outlook = self.figures("outlook")
        self.assertEqual((outlook["outcomes"], outlook["exact"]), (str(2**63), False))
        chances = [player[key] for player in outlook["players"] for key in ("firstAlone", "firstShared", "share")]
        for chance in chances:
            self.assertIsInstance(chance, (int, float))
            self.assertTrue(0 <= chance <= 1, chance)
        self.assertAlmostEqual(sum(player["share"] for player in outlook["players"]), 1, places=6)

    def test_the_standings_have_places(self):
        small_pool(self.folder)
        standings = self.figures("standings", "--title", "M\u00e4rz")
        self.assertEqual(standings["title"], "M\u00e4rz")
        self.assertEqual([(player["place"], player["name"], player["points"], player["total"])
                          for player in standings["players"]],
                         [(1, "AB, Adams", 128, 150), (2, "EF, Dunn", 96, 250), (2, "C, Baker", 96, 99),
                          (4, "D, Clark", 0, None)])
        self.assertEqual(standings["players"][1], {
            "place": 2, "file": "Dunn_EF.THC", "name": "EF, Dunn", "points": 96, "possible": 136, "good": 45, "bad": 15,
            "open": 3, "total": 250, "champion": "PINE BLUFF"})

    def test_a_selection_that_cannot_be_read_has_no_figures(self):
        small_pool(self.folder)
        lines = self.folder.read("Dunn_EF.THC").split(b"\r\n")
        self.folder.write("Nobody_N.THC", b"")
        self.folder.write("Dunn_EF.THC", b"\r\n".join(lines[:20]))  # the West, and the winners of four games there
        done = self.folder.run("standings", "--json")
        self.assertEqual((done.returncode, len(done.stderr.splitlines())), (1, 2))
        figures = json.loads(done.stdout)
        self.validate("standings", figures)
        self.assertEqual([player["name"] for player in figures["players"]],
                         ["AB, Adams", "C, Baker", "Dunn_EF.THC", "D, Clark"])
        self.assertEqual({key: figures["players"][2][key] for key in ("points", "good", "bad", "open")},
                         {"points": 4, "good": 4, "bad": 59, "open": 0})

    def test_the_final_sheet_has_prizes_to_the_cent(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file("Pool"))
        self.folder.write("PRIZES.CSV", PRIZES)
        # tests/approved/small/FINAL.TXT: 40.04 less 4.00 kept back are 21.63 + 7.21 + 7.20 in prizes.
        final = self.figures("final")
        self.assertEqual({key: final[key] for key in ("title", "openGames", "total", "fees", "keptBack", "left")},
                         {"title": "Pool", "openGames": 3, "total": None, "fees": "40.04", "keptBack": "4.00",
                          "left": "0.00"})
        # Baker's 99 and Dunn's 250 are equally far from 174.5.
        self.assertEqual((final["ties"], final["remarks"]), ("nearest", []))
        self.assertEqual(final["pairs"], [{"place": 2, "lower": "Baker_C.THC", "higher": "Dunn_EF.THC",
                                           "alwaysTied": False, "lowerUpTo": 174, "higherFrom": 175}])
        self.assertEqual(final["players"][1], {
            "place": 2, "shared": True, "last": False, "file": "Dunn_EF.THC", "name": "EF, Dunn", "points": 96,
            "total": 250, "off": None, "prize": "7.21"})
        self.assertEqual([(player["place"], player["prize"], player["last"]) for player in final["players"]],
                         [(1, "21.63", False), (2, "7.21", False), (2, "7.20", False), (4, "0.00", True)])

    def test_the_scores_are_in_the_order_of_the_files(self):
        small_pool(self.folder)
        players = self.figures("scores")["players"]
        self.assertEqual([player["file"] for player in players],
                         ["Adams_AB.THC", "Baker_C.THC", "Clark_D.THC", "Dunn_EF.THC"])
        self.assertEqual(players[2], {"file": "Clark_D.THC", "name": "D, Clark", "points": 0, "possible": 0,
                                      "champion": None})

    def test_the_schemas_refuse_what_is_not_promised(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", small_field())
        outlook = self.figures("outlook")
        wrong = {"a count as a number": ("firstAlone", 7), "a verdict": ("verdict", "alive"), "a place": ("best", 0),
                 "points": ("points", "128"), "a share": ("share", 1.5)}
        for what, (key, value) in wrong.items():
            with self.subTest(what):
                other = copy.deepcopy(outlook)
                other["players"][0][key] = value
                with self.assertRaises(jsonschema.ValidationError):
                    self.validate("outlook", other)
        for key in ("outcomes", "exact", "weights", "players"):
            with self.subTest(key), self.assertRaises(jsonschema.ValidationError):
                self.validate("outlook", {name: value for name, value in outlook.items() if name != key})


if __name__ == "__main__":
    unittest.main()
