"""The scripts must find what they are for. Usage: scripts_test.py NM PLANTED_LIBRARY CC CXX."""

import sys
import tempfile
import unittest
from pathlib import Path

import documentation
import exports
import headers
from declarations import DeclarationError, Function, Parameter, parse
from generate import generate
from rules import MayBeNull, NoPartner, NotSwept, Span, Values

HERE = Path(__file__).parent
NM, PLANTED_LIBRARY, CC, CXX = sys.argv[1:]


class DeclarationsTest(unittest.TestCase):
    def test_declarations_span_lines_and_comments_are_ignored(self):
        text = """
            #define VEKS_API __attribute__((visibility("default")))
            /* VEKS_API VekStatus veksOld(int len); */
            VEKS_API VekStatus veksAdd_8u(const Vek8u* pSrc1,  // VEKS_API int veksNo(void);
                                          const Vek8u *pSrc2, int len);
            VEKS_API const char* vekGetName(void);
        """
        add = Function(
            "veksAdd_8u",
            "VekStatus",
            (
                Parameter("const Vek8u*", "pSrc1"),
                Parameter("const Vek8u*", "pSrc2"),
                Parameter("int", "len"),
            ),
        )
        self.assertEqual(parse(text), [add, Function("vekGetName", "const char*", ())])

    def test_what_cannot_be_read_is_an_error(self):
        for text in (
            "VEKS_API VekStatus veksAdd_8u(Vek8u pDst[4], int len);",
            "VEKS_API VekStatus veksCall(void (*callback)(int), int len);",
            "VEKS_API VekStatus veksAdd_8u(const Vek8u*, int len);",
            "VEKS_API extern int veksVariable;",
            "VekStatus veksAdd_8u(Vek8u* pDst, int len);",
        ):
            with self.subTest(text), self.assertRaises(DeclarationError):
                parse(text)


class GenerateTest(unittest.TestCase):
    def generate(self, text, *rules):
        return generate(parse(text), rules, [], "functions")

    def assert_error(self, message, text, *rules):
        with self.assertRaisesRegex(DeclarationError, message):
            self.generate(text, *rules)

    def test_a_new_declaration_joins_without_further_ado(self):
        source = self.generate("VEKS_API VekStatus veksNew_8u(Vek8u val, Vek8u* pDst, int len);")
        self.assertIn('"veksNew_8u"', source)
        self.assertIn('{scalar<Vek8u>("val"), destination<Vek8u>("pDst"), length("len")}', source)

    def test_what_cannot_be_classified_needs_an_exception(self):
        sums = "VEKS_API VekStatus veksSums_8u(const Vek8u* pSrc, int len, Vek32s* pSums);"
        self.assert_error(r"veksSums_8u: cannot classify 'Vek32s\* pSums'", sums)
        rule = Span("veksSums_8u", parameters="pSums", fixed=2, reason="two results")
        self.assertIn('destination<Vek32s>("pSums", Span{0, 2})', self.generate(sums, rule))

        shift = "VEKS_API VekStatus veksShift_8u(int val, Vek8u* pDst, int len);"
        self.assert_error("veksShift_8u: cannot classify 'int val'", shift)
        rule = Values("veksShift_8u", parameters="val", valid=(0, 1), reason="bit counts")
        self.assertIn('scalar<int>("val", kValid0)', self.generate(shift, rule))

        for parameters in (
            "Vek8u* pSrc, int len",
            "const Vek8u* pDst, int len",
            "const Vek8u* pSrcDst, int len",
            "const Vek8u** pSrc, int len",
            "const Vek8u* pSrc, int srcLen",
            "const VeksState* pSrc, int len",
        ):
            with self.subTest(parameters):
                self.assert_error("cannot classify", f"VEKS_API VekStatus veksOdd({parameters});")

    def test_single_results_have_familiar_names(self):
        parameters = "const Vek8u* pSrc, int len, Vek8u* pMax, int* pIndx"
        text = f"VEKS_API VekStatus veksMaxIndx_8u({parameters});"
        self.assertIn('result<Vek8u>("pMax"), result<int>("pIndx")', self.generate(text))
        rule = MayBeNull("veksMaxIndx_8u", parameters="pIndx", reason="left out")
        self.assertIn('mayBeNull(result<int>("pIndx"))', self.generate(text, rule))

    def test_other_shapes_need_an_exception(self):
        for text in (
            "VEKS_API VekStatus veksOdd(const Vek8u* pSrc);",
            "VEKS_API int veksOdd(const Vek8u* pSrc, int len);",
        ):
            self.assert_error("veksOdd has no vector shape", text)
            source = self.generate(text, NotSwept("veksOdd", reason="odd"))
            self.assertNotIn("veksOdd", source)

    def test_an_in_place_function_needs_its_partner_or_an_exception(self):
        in_place = "VEKS_API VekStatus veksNot_8u_I(Vek8u* pSrcDst, int len);"
        others = (
            "",
            "VEKS_API VekStatus veksNot_8u(const Vek16u* pSrc, Vek8u* pDst, int len);",
            "VEKS_API VekStatus veksNot_8u(Vek8u val, const Vek8u* pSrc, Vek8u* pDst, int len);",
        )
        for other in others:
            with self.subTest(other):
                self.assert_error("veksNot_8u_I is the in-place form of nothing", in_place + other)
        self.generate(in_place, NoPartner("veksNot_8u_I", reason="alone"))
        partner = "VEKS_API VekStatus veksNot_8u(const Vek8u* pSrc, Vek8u* pDst, int len);"
        self.assertIn("&kFunctions[0]", self.generate(partner + in_place))
        scaled = (partner + in_place).replace("8u(", "8u_Sfs(").replace("8u_I(", "8u_ISfs(")
        self.assertIn("&kFunctions[0]", self.generate(scaled))

    def test_an_exception_that_matches_nothing_is_an_error(self):
        text = "VEKS_API VekStatus veksZero_8u(Vek8u* pDst, int len);"
        for rule in (
            NotSwept("veksOne_8u", reason="gone"),
            NoPartner("veksZero_8u", reason="not in place"),
            Span("veksZero_8u", parameters="pSrc", fixed=1, reason="renamed"),
        ):
            with self.subTest(rule):
                self.assert_error("no function needs the exception", text, rule)


class ExportsTest(unittest.TestCase):
    def test_the_faults_of_the_planted_library_are_found(self):
        findings = exports.check(NM, PLANTED_LIBRARY, [HERE / "planted/exports.h"])
        expected = [
            "declared, but not exported: veksPlantedMissing",
            "exported, but not declared: veksPlantedUndeclared",
            "imported: abort",
            "imported: puts",
        ]
        self.assertEqual(findings, expected)


class HeadersTest(unittest.TestCase):
    def check(self, text):
        with tempfile.TemporaryDirectory() as directory:
            header = Path(directory, "header.h")
            header.write_text(text, encoding="utf-8")
            return headers.check({"c": CC, "c++": CXX}, Path(directory), header)

    def test_a_plain_header_passes(self):
        text = "#ifndef HEADER_H\n#define HEADER_H\ntypedef struct { int value; } Record;\n#endif\n"
        self.assertEqual(self.check(text), [])

    def test_missing_includes_and_guards_are_found_in_every_language(self):
        for text in ("uint8_t first(void);\n", "typedef struct { int value; } Record;\n"):
            self.assertEqual(len(self.check(text)), len(headers.LANGUAGES), text)

    def test_what_only_one_language_takes_is_found(self):
        cpp_only = "#ifndef H\n#define H\nenum class Kind { kOne };\n#endif\n"
        self.assertEqual(len(self.check(cpp_only)), 2)
        c_only = "#ifndef H\n#define H\nvoid f(int * restrict p);\n#endif\n"
        self.assertEqual(len(self.check(c_only)), 2)


class DocumentationTest(unittest.TestCase):
    def test_functions_without_documentation_are_found(self):
        text = """
            /** Gives one. @return 1 */
            VEKS_API int veksOne(void);
            VEKS_API int veksBare(void);
            /**
             * @name Group
             * @return a status
             * @{
             */
            VEKS_API VekStatus veksFirst(int len);
            VEKS_API VekStatus veksSecond(int len);
            /** @} */
            VEKS_API VekStatus veksAfter(int len);
            /** Says nothing of its result. */
            VEKS_API VekStatus veksSilent(int len);
            /** Needs no result. */
            VEKS_API void veksFree(void* ptr);
        """
        self.assertEqual(documentation.check(text), ["veksBare", "veksAfter", "veksSilent"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
