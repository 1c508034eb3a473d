"""What scripts/mutants.py finds in a source; run by ctest."""
import importlib.machinery
import importlib.util
import pathlib
import re
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))
import mutants


def the_tool():
    loader = importlib.machinery.SourceFileLoader("mutation", str(ROOT / "scripts/mutation"))
    tool = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutation", loader))
    loader.exec_module(tool)
    return tool


def changes(line):
    return {mutant.change() for mutant in mutants.of_source("a.cpp", line)}


class Mutants(unittest.TestCase):
    def test_a_comparison_is_swapped_and_its_number_is_off_by_one(self):
        self.assertEqual(changes("    return anzahl < 8;"), {"< -> <=", "8 -> 9"})

    def test_an_octal_number_stays_one(self):
        self.assertEqual(changes("    Oeffne(pfad, 0600);"), {"0600 -> 0601", "Oeffne(pfad, 0600); -> ;"})

    def test_and_becomes_or(self):
        self.assertEqual(changes("    return a && b;"), {"&& -> ||"})

    def test_a_condition_without_an_operator_is_negated(self):
        self.assertEqual(changes("    if (Fertig(a))"), {"Fertig(a) -> !(Fertig(a))"})

    def test_a_call_is_deleted(self):
        self.assertEqual(changes("    ziel.ZeigeAlle(teil);"), {"ziel.ZeigeAlle(teil); -> ;"})

    def test_an_assignment_is_deleted(self):
        self.assertEqual(changes("    zustand = neu;"), {"zustand = neu; -> ;"})

    def test_a_declaration_and_half_a_statement_stay(self):
        self.assertEqual(changes("    const Werte werte = Lies(teil);\n    teil, wert);"), set())

    def test_templates_pointers_and_references_are_no_operators(self):
        self.assertEqual(changes("    std::vector<int> f(Werte&& a, const char* b, int& c);"), set())

    def test_texts_and_comments_stay(self):
        self.assertEqual(changes('    return "a < 8 && b"; // a < 8'), set())

    def test_a_digit_separator_does_not_begin_a_literal(self):
        self.assertEqual(changes("    return a == 'x' && b;"), {"== -> !=", "&& -> ||"})

    def test_a_text_inside_a_deleted_call_comes_back_in_the_description(self):
        self.assertIn('Zeige("a"); -> ;', changes('    Zeige("a");'))

    def test_one_mutant_changes_one_place(self):
        content = "int f() {\n    return a + b + 1;\n}"
        applied = {mutant.applied_to(content) for mutant in mutants.of_source("a.cpp", content)}
        self.assertEqual(applied, {content.replace("a + b", "a - b"), content.replace("b + 1", "b - 1"),
                                   content.replace("1;", "2;")})


def test_programs():
    lists = "".join(path.read_text() for path in (ROOT / "tests").glob("*/CMakeLists.txt"))
    return set(re.findall(r"varnoth_test\((\w+)", lists))


class Programs(unittest.TestCase):
    def test_every_folder_with_sources_is_a_room(self):
        self.assertEqual(set(the_tool().ROOMS), {path.parent.name for path in (ROOT / "src").glob("*/*.cpp")})

    def test_a_room_stands_there_once(self):
        rows = re.findall(r'^    "(\w+)": \[', (ROOT / "scripts/mutation").read_text(), re.MULTILINE)
        self.assertEqual(len(rows), len(set(rows)))

    def test_what_is_to_notice_a_mistake_in_a_room_is_a_test_program(self):
        for room, programs in the_tool().ROOMS.items():
            self.assertLessEqual(set(programs), test_programs(), room)

    def test_memcheck_runs_the_rules_of_every_floor_without_qt(self):
        told = subprocess.run([ROOT / "scripts/valgrind", "--programs"], check=True, stdout=subprocess.PIPE, text=True)
        programs = set(told.stdout.split())
        self.assertLessEqual(programs, test_programs())
        self.assertLessEqual({room + "_tests" for room in ("common", "model", "klartext", "report", "link", "simulator")},
                             programs)


if __name__ == "__main__":
    unittest.main()
