"""Running veks-wav in a directory of its own."""

import os
import pathlib
import subprocess
import tempfile
import unittest

import wav_files

PROGRAM = os.environ["VEKS_WAV"]


class ProgramTest(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.dir = pathlib.Path(directory.name)

    def run_program(self, *args, **options):
        return subprocess.run([PROGRAM, *map(str, args)], cwd=self.dir, capture_output=True,
                              text=True, timeout=120, check=False, **options)

    def succeed(self, *args, **options):
        result = self.run_program(*args, **options)
        self.assertEqual((result.returncode, result.stderr), (0, ""), args)
        return result.stdout

    def fail_with(self, words, *args, **options):
        """Fails with one line that has all the words; no file comes, goes or changes."""
        before = self.files()
        result = self.run_program(*args, **options)
        self.assertGreater(result.returncode, 0, args)
        self.assertEqual(result.stdout, "")
        self.assertRegex(result.stderr, r"\Aveks-wav: [^\n]+\n\Z")
        for word in words:
            self.assertIn(word, result.stderr)
        self.assertEqual(self.files(), before)

    def files(self):
        return {path.name: path.read_bytes() for path in self.dir.iterdir() if path.is_file()}

    def write(self, name, sound):
        wav_files.write(self.dir / name, sound)

    def read(self, name):
        return wav_files.read(self.dir / name)
