"""WAV files as lists of integers, read and written without the program under test.

A sound has a kind (the encoding), and frames that are tuples of one integer per channel: the sample
of a PCM kind, the bit pattern of a floating-point kind.
"""

import random
import struct
import wave
from dataclasses import dataclass

PCM_BYTES = {"pcm8": 1, "pcm16": 2, "pcm24": 3, "pcm32": 4}
FLOAT_BYTES = {"f32": 4, "f64": 8}
BYTES = {**PCM_BYTES, **FLOAT_BYTES}
KINDS = tuple(BYTES)

# Zeros, subnormals, full scale and beyond, infinities, NaN with a payload.
SPECIAL = {
    "f32": (0, 0x80000000, 1, 0x3F800000, 0xC0400000, 0x7F800000, 0xFF800000, 0x7FC12345),
    "f64": (0, 1 << 63, 1, 0x3FF << 52, 0xC008 << 48, 0x7FF << 52, 0xFFF << 52,
            0x7FF8000012345678),
}


@dataclass
class Sound:
    kind: str
    channels: int
    frames: list
    rate: int = 8000


def sample_range(kind):
    """The least and the largest PCM sample. Only 8 bits are unsigned."""
    if kind == "pcm8":
        return 0, 255
    top = 1 << (8 * BYTES[kind] - 1)
    return -top, top - 1


def silence(kind):
    return 128 if kind == "pcm8" else 0


def random_sound(kind, channels, length, seed=1):
    source = random.Random(f"{kind} {channels} {length} {seed}")
    if kind in FLOAT_BYTES:
        code = {"f32": "fI", "f64": "dQ"}[kind]
        choose = lambda: (source.choice(SPECIAL[kind]) if source.random() < 0.1 else
                          bits_of(source.uniform(-1, 1), code))
    else:
        low, high = sample_range(kind)
        choose = lambda: (source.choice((low, high, silence(kind))) if source.random() < 0.1 else
                          source.randint(low, high))
    frames = [tuple(choose() for _ in range(channels)) for _ in range(length)]
    return Sound(kind, channels, frames)


def bits_of(value, code="fI"):
    return struct.unpack("<" + code[1], struct.pack("<" + code[0], value))[0]


def data_of(sound):
    width = BYTES[sound.kind]
    signed = sound.kind in ("pcm16", "pcm24", "pcm32")
    return b"".join(sample.to_bytes(width, "little", signed=signed)
                    for frame in sound.frames for sample in frame)


def frames_of(data, kind, channels):
    width = BYTES[kind]
    signed = kind in ("pcm16", "pcm24", "pcm32")
    samples = [int.from_bytes(data[i:i + width], "little", signed=signed)
               for i in range(0, len(data), width)]
    return [tuple(samples[i:i + channels]) for i in range(0, len(samples), channels)]


def write_riff(path, *chunks):
    body = b"WAVE" + b"".join(name + struct.pack("<I", len(data)) + data for name, data in chunks)
    path.write_bytes(b"RIFF" + struct.pack("<I", len(body)) + body)


def format_chunk(tag, channels, rate, width):
    block = width * channels
    return b"fmt ", struct.pack("<HHIIHH", tag, channels, rate, rate * block, block, 8 * width)


def write(path, sound):
    data = data_of(sound)
    width = BYTES[sound.kind]
    if sound.kind in FLOAT_BYTES:
        write_riff(path, format_chunk(3, sound.channels, sound.rate, width), (b"data", data))
        return
    with wave.open(str(path), "wb") as file:
        file.setnchannels(sound.channels)
        file.setsampwidth(width)
        file.setframerate(sound.rate)
        file.writeframes(data)


def chunks(path):
    """The chunks of a RIFF file by name."""
    content = path.read_bytes()
    assert content[:4] == b"RIFF" and content[8:12] == b"WAVE", content[:12]
    assert struct.unpack("<I", content[4:8])[0] == len(content) - 8, "RIFF size"
    found = {}
    offset = 12
    while offset < len(content):
        name, size = struct.unpack("<4sI", content[offset:offset + 8])
        found[name.decode()] = content[offset + 8:offset + 8 + size]
        offset += 8 + size + size % 2
    return found


def read(path):
    found = chunks(path)
    tag, channels, rate, _, _, bits = struct.unpack("<HHIIHH", found["fmt "][:16])
    if tag == 3:
        kind = f"f{bits}"
        return Sound(kind, channels, frames_of(found["data"], kind, channels), rate)
    with wave.open(str(path), "rb") as file:
        kind = f"pcm{8 * file.getsampwidth()}"
        data = file.readframes(file.getnframes())
        return Sound(kind, file.getnchannels(), frames_of(data, kind, file.getnchannels()),
                     file.getframerate())
