"""Tests of what veks-wav refuses, and that failures leave no traces."""

import os
import resource
import signal
import subprocess
import time

from program import PROGRAM, ProgramTest
from wav_files import Sound, format_chunk, random_sound, write_riff


class ErrorsTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.write("good.wav", random_sound("pcm16", 2, 100))
        self.write("mono.wav", random_sound("pcm16", 1, 100))
        self.write("three.wav", random_sound("pcm16", 3, 100))
        self.write("byte.wav", random_sound("pcm8", 2, 100))
        self.write("fast.wav", Sound("pcm16", 2, [(1, 2)], rate=48000))
        self.write("odd.wav", Sound("pcm16", 2, [(1, 2)], rate=44100))
        self.write("float.wav", random_sound("f32", 2, 100))
        self.write("none.wav", Sound("pcm16", 2, []))
        self.write("long.wav", random_sound("pcm16", 2, 40000))
        write_riff(self.dir / "ulaw.wav", format_chunk(7, 2, 8000, 1), (b"data", bytes(20)))
        (self.dir / "empty.wav").write_bytes(b"")
        (self.dir / "text.wav").write_text("This is no sound.\n" * 100)
        (self.dir / "dir.wav").mkdir()
        os.mkfifo(self.dir / "pipe.wav")
        for extension in ("aiff", "au", "w64", "rf64", "caf", "flac", "ogg"):
            self.succeed("pad", "--before", "0", "long.wav", f"long.{extension}")
        (self.dir / "old.wav").write_text("old")

    def cut(self, name, count):
        content = (self.dir / name).read_bytes()
        (self.dir / f"cut-{name}").write_bytes(content[:count])

    def test_inputs(self):
        cases = [("missing.wav", "No such file"), ("empty.wav", "empty"),
                 ("text.wav", "not a sound file"), ("dir.wav", "not a regular file"),
                 ("pipe.wav", "not a regular file"), ("none/x.wav", "No such file")]
        commands = [lambda name, out: ("reverse", name, out),
                    lambda name, out: ("crush", "--bits", 4, name, out),
                    lambda name, out: ("pad", "--after", 1, name, out),
                    lambda name, out: ("gain", "-3", name, out),
                    lambda name, out: ("limit", "0.5", name, out),
                    lambda name, out: ("convert", "--format", "s24", name, out),
                    lambda name, out: ("mix", name, "good.wav", out),
                    lambda name, out: ("mix", "good.wav", name, out),
                    lambda name, out: ("concat", name, "good.wav", out),
                    lambda name, out: ("concat", "good.wav", name, out),
                    lambda name, out: ("info", name),
                    lambda name, out: ("info", name, "--plot", "out.png")]
        for name, reason in cases:
            for command in commands:
                for out in ("out.wav", "old.wav"):
                    with self.subTest(name=name, command=command(name, out)):
                        self.fail_with([name, reason], *command(name, out))

    def test_truncated_inputs(self):
        cases = [("good.wav", 443), ("good.wav", 44), ("good.wav", 30), ("good.wav", 11),
                 ("float.wav", 800), ("long.aiff", 90000), ("long.au", 90000),
                 ("long.w64", 90000), ("long.rf64", 90000), ("long.caf", 90000),
                 ("long.flac", 90000), ("long.ogg", 10000)]
        for name, count in cases:
            self.cut(name, count)
            for args in (("info",), ("reverse",), ("pad", "--before", "0"), ("gain", "1")):
                with self.subTest(name=name, count=count, args=args):
                    outputs = () if args == ("info",) else ("old.wav",)
                    self.fail_with([f"cut-{name}"], *args, f"cut-{name}", *outputs)

    def test_wav_of_unknown_length_is_read_to_its_end(self):
        content = bytearray((self.dir / "good.wav").read_bytes())
        content[4:8] = content[40:44] = b"\xff\xff\xff\xff"
        (self.dir / "stream.wav").write_bytes(content)
        self.succeed("pad", "--before", "0", "stream.wav", "out.wav")
        self.assertEqual(self.read("out.wav"), self.read("good.wav"))

    def test_combinations(self):
        cases = [
            (("concat", "good.wav", "mono.wav", "old.wav"), ["mono.wav", "channel", "1", "2"]),
            (("concat", "good.wav", "fast.wav", "old.wav"), ["fast.wav", "48000", "8000", "Hz"]),
            (("concat", "none.wav", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("mix", "good.wav", "fast.wav", "old.wav"), ["fast.wav", "48000", "8000", "Hz"]),
            (("mix", "mono.wav", "fast.wav", "old.wav"), ["fast.wav", "48000", "8000", "Hz"]),
            (("mix", "good.wav", "three.wav", "old.wav"), ["three.wav", "channel", "3", "2"]),
            (("mix", "none.wav", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("mix", "long.flac", "float.wav", "out.flac"), ["out.flac", "FLAC", "cannot hold"]),
            (("gain", "1", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("limit", "1", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("convert", "--format", "u8", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("convert", "--format", "f32", "good.wav", "out.flac"), ["out.flac", "cannot hold"]),
            (("convert", "--format", "s32", "good.wav", "out.flac"), ["out.flac", "cannot hold"]),
            (("convert", "--format", "f32", "good.wav", "out.ogg"), ["out.ogg", "cannot hold"]),
            (("reverse", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("crush", "--bits", "4", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("pad", "--after", "0", "none.wav", "old.wav"), ["none.wav", "no frames"]),
            (("info", "none.wav", "--plot", "x.png"), ["none.wav", "no frames"]),
            (("crush", "--bits", "4", "float.wav", "old.wav"), ["float.wav", "integer PCM"]),
            (("crush", "--bits", "4", "ulaw.wav", "old.wav"), ["ulaw.wav", "integer PCM"]),
            (("concat", "ulaw.wav", "float.wav", "old.wav"), ["float.wav", "floating", "U-Law"]),
            (("crush", "--bits", "9", "byte.wav", "old.wav"), ["byte.wav", "1 to 8"]),
            (("pad", "--after", "86400", "fast.wav", "old.wav"), ["old.wav", "4 GiB"]),
            (("info", "good.wav", "--plot", "good.wav"), ["good.wav", ".png"]),
            (("info", "good.wav", "--plot", "none/x.png"), ["none/x.png", "No such file"]),
        ]
        for args, words in cases:
            with self.subTest(args=args):
                self.fail_with(words, *args)

    def test_outputs(self):
        cases = [("out.xyz", ".xyz"), ("out.mp4", ".mp4"), ("none/out.wav", "No such file"),
                 ("dir.wav", "not a regular file"), ("pipe.wav", "not a regular file"),
                 ("/dev/null", "not a regular file"), ("good.wav/out.wav", "Not a directory"),
                 ("n" * 260 + ".wav", "File name too long")]
        for name, reason in cases:
            with self.subTest(name=name):
                self.fail_with([name, reason], "reverse", "good.wav", name)
        self.fail_with(["out.flac", "cannot hold", "float.wav"], "reverse", "float.wav", "out.flac")
        self.fail_with(["odd.opus", "sample rate"], "reverse", "odd.wav", "odd.opus")

    def test_options(self):
        cases = [(), ("play", "good.wav"), ("reverse",), ("reverse", "good.wav"),
                 ("reverse", "good.wav", "a.wav", "b.wav"), ("reverse", "--loud", "a", "b"),
                 ("info", "good.wav", "--plot")]
        cases += [("crush", *bits, "good.wav", "out.wav")
                  for bits in ((), ("--bits", "0"), ("--bits", "-1"), ("--bits", "33"),
                               ("--bits", "2.5"), ("--bits", "x"), ("--bits", ""),
                               ("--bits", "99999999999"))]
        cases += [("pad", *seconds, "good.wav", "out.wav")
                  for seconds in ((), ("--before", "-1"), ("--after", "nan"), ("--after", "inf"),
                                  ("--after", "1e9"), ("--before", "x"), ("--before", ""),
                                  ("--before", "1s"))]
        numbers = ("", "x", "nan", "inf", "-inf", "1e999", "3dB", "0.5 ", "--", "1,5")
        cases += [("gain", *decibels, "good.wav", "out.wav")
                  for decibels in ((), ("201",), ("-200.1",), *((text,) for text in numbers))]
        cases += [("limit", *level, "good.wav", "out.wav")
                  for level in ((), ("0",), ("-0.5",), ("1.01",), *((text,) for text in numbers))]
        cases += [("convert", *name, "good.wav", "out.wav")
                  for name in ((), ("--format",), ("--format", ""), ("--format", "s20"),
                               ("--format", "S16"), ("--format", "16"))]
        cases += [("mix", "good.wav", "out.wav"), ("mix", "good.wav"), ("gain", "1", "good.wav")]
        for args in cases:
            with self.subTest(args=args):
                self.fail_with([], *args)

    def test_permissions(self):
        options = {}
        if os.geteuid() == 0:  # who may do everything
            self.dir.chmod(0o755)
            options = {"user": 65534, "group": 65534}
            try:
                self.run_program("info", "good.wav", **options)
            except PermissionError:
                self.skipTest("the program lies where other users may not go")
        for name, mode in (("secret.wav", 0), ("fixed.wav", 0o444)):
            (self.dir / name).write_bytes((self.dir / "good.wav").read_bytes())
            (self.dir / name).chmod(mode)
        (self.dir / "dir.wav").chmod(0o555)
        cases = [("secret.wav", ("info", "secret.wav")),
                 ("secret.wav", ("concat", "good.wav", "secret.wav", "dir.wav/x.wav")),
                 ("fixed.wav", ("reverse", "good.wav", "fixed.wav")),
                 ("dir.wav/x.wav", ("reverse", "good.wav", "dir.wav/x.wav")),
                 ("dir.wav/x.png", ("info", "good.wav", "--plot", "dir.wav/x.png"))]
        for name, args in cases:
            with self.subTest(args=args):
                result = self.run_program(*args, **options)
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr,
                                 rf"\Aveks-wav: {name}: [^\n]*Permission denied\n\Z")
        self.assertEqual(os.listdir(self.dir / "dir.wav"), [])


class InterruptionTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.write("in.wav", random_sound("pcm16", 2, 40000))
        (self.dir / "old.wav").write_text("old")

    def test_full_disk(self):
        # libsndfile loses memory of the Vorbis encoder when a write fails.
        environment = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0"}
        for out in ("out.wav", "old.wav", "out.flac", "out.ogg", "out.aiff"):
            for limit in (0, 10, 20000):
                def limit_files(limit=limit):
                    resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))

                with self.subTest(out=out, limit=limit):
                    self.fail_with([out, "File too large"], "reverse", "in.wav", out,
                                   env=environment, preexec_fn=limit_files)

    def test_unwritable_standard_output(self):
        with open("/dev/full", "w", encoding="ascii") as full:
            result = subprocess.run([PROGRAM, "info", "in.wav"], cwd=self.dir, stdout=full,
                                    stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stderr, r"\Aveks-wav: standard output: [^\n]+\n\Z")

    def test_signals(self):
        before = self.files()
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(signal=number):
                args = [PROGRAM, "pad", "--after", "80000", "in.wav", "old.wav"]
                with subprocess.Popen(args, cwd=self.dir) as process:
                    while len(os.listdir(self.dir)) == 2 and process.poll() is None:
                        time.sleep(0.001)
                    process.send_signal(number)
                    self.assertEqual(process.wait(60), -number)
                self.assertEqual(self.files(), before)
