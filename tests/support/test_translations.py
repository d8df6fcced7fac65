# SPDX-License-Identifier: MIT
"""The check of the translations finds what it is there for, and nothing in the sources as they are."""
import pathlib
import runpy
import sys
import types
import unittest

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "script"
sys.path.insert(0, str(SCRIPTS / "lib"))
import texts  # noqa: E402

check = types.SimpleNamespace(**runpy.run_path(str(SCRIPTS / "check-translations")))


class TranslationsTest(unittest.TestCase):
    def test_texts_are_found_as_the_compiler_reads_them(self):
        source = r'''call(LMLocalized("One \"two\""
                    " three"), {LMLocalizable("Four")}); // LMLocalized("no")
            LMLocalized("Five", "sense"); other("Six", LMLocalized(name));'''
        found = texts.texts(texts.literals(source, "a.cpp"))
        self.assertEqual([*found], [('One "two" three', ""), ("Four", ""), ("Five", "sense")])

    def test_unmarked_texts_are_found(self):
        rows = [
            ('label->setText(QStringLiteral("Hello"));', True),
            ('*reason = QStringLiteral("The server does not answer.");', True),
            ('menu.addAction(icon, u"Open"_qs)', True),
            ('label->setText(LMFormat(LMLocalized("Hello %@"), {name}));', False),
            ('label->setText(QStringLiteral("%1×%2"));', False),
            ('logger.error(QStringLiteral("The server does not answer: %@"), {why});', False),
        ]
        for source, is_found in rows:
            self.assertEqual(bool(list(check.unmarked(texts.literals(source, "a.cpp")))), is_found, source)

    def test_faults_of_translations_are_found(self):
        rows = [
            ("de", "Replace", "", "not translated"),
            ("de", "%@ of %lu", "%2$lu, %1$@", ""),
            ("de", "%@ of %@", "%1$@ %1$@", "placeholders"),
            ("de", "&Edit", "Bearbeiten&", "mnemonics"),
            ("ja", "&Edit", "編集(&E)", ""),
            ("ja", "&Edit", "&編集", "brackets"),
            ("fr", "Edit…", "Modifier", "ends otherwise"),
            ("fr", "Sure?", "Sûr ?", "has"),
            ("ar", " s", "ث", "spaces"),
        ]
        for language, source, translation, expected in rows:
            message = texts.Message(source, "", translation, bool(translation), ["a.cpp"])
            found = list(check.catalogue_faults([message], {(source, ""): ["a.cpp"]}, language))
            self.assertEqual(len(found), 1 if expected else 0, (translation, found))
            self.assertIn(expected, "".join(found))

    def test_catalogues_are_compared_with_the_sources(self):
        messages = [texts.Message("&Add", "", "&Neu", True, ["a.cpp"]),
                    texts.Message("&Remove", "", "E&ntfernen", True, ["a.cpp"])]
        found = list(check.catalogue_faults(messages, {("&Add", ""): [], ("&Edit", ""): []}, "de"))
        for expected in ("“&Edit” is missing", "“&Remove” is gone", "share a mnemonic"):
            self.assertEqual(sum(expected in fault for fault in found), 1, expected)

    def test_everything_is_translated(self):
        self.assertEqual(list(check.all_faults()), [])


if __name__ == "__main__":
    unittest.main()
