"""Sound files: NAME.txt is a short score, played by the instruments below."""

import array
import io
import math
import os
import sys
import wave

from .requirements import AssetError

RATE = 22050  # samples a second; one channel of 16 bits
PEAK = 0.6  # of full scale: a sound of the desktop is heard, never loud
FADE = 0.004  # seconds at the end of a tone in which it goes to nothing, so that it does not click
STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}

# An instrument is its partials: (multiple of the pitch, share of the loudness, seconds until it is down to 1/e),
# and the seconds that a tone takes to begin.
INSTRUMENTS = {
    "bell": ([(1.0, 0.55, 0.60), (2.0, 0.25, 0.40), (2.76, 0.12, 0.22), (5.4, 0.08, 0.08)], 0.003),
    "wood": ([(1.0, 0.75, 0.11), (3.93, 0.18, 0.04), (9.2, 0.07, 0.015)], 0.001),
    "glass": ([(1.0, 0.60, 0.25), (3.0, 0.22, 0.15), (4.2, 0.18, 0.06)], 0.002),
}


def build(folder):
    """The sound files as {name: bytes}."""
    names = sorted(name[:-4] for name in os.listdir(folder) if name.endswith(".txt"))
    return {name + ".wav": _wave(_played(_score(os.path.join(folder, name + ".txt")))) for name in names}


def _score(path):
    """Lines "start pitch seconds loudness instrument"; ";" begins a comment."""
    tones = []
    with open(path, encoding="ascii") as file:
        for line in file:
            fields = line.split(";")[0].split()
            if not fields:
                continue
            if len(fields) != 5 or fields[4] not in INSTRUMENTS and fields[4] != "paper":
                raise AssetError(f"{path}: not a tone: {line.strip()}")
            start, pitch, seconds, loudness, instrument = fields
            tones.append((float(start), _frequency(path, pitch), float(seconds), float(loudness), instrument))
    return tones


def _frequency(path, pitch):
    """Of a note such as A4, in equal temperament, or a number of hertz."""
    if pitch[0] not in STEPS:
        return float(pitch)
    accidental = {"#": 1, "b": -1}.get(pitch[1:-1], 0)
    if pitch[1:-1] not in ("", "#", "b") or not pitch[-1].isdigit():
        raise AssetError(f"{path}: not a pitch: {pitch}")
    return 440.0 * 2 ** ((STEPS[pitch[0]] + accidental - 9) / 12 + int(pitch[-1]) - 4)


def _played(tones):
    """The samples of all tones together, brought to the common loudness."""
    length = max(start + seconds for start, _, seconds, _, _ in tones)
    samples = [0.0] * int(length * RATE)
    for start, frequency, seconds, loudness, instrument in tones:
        first = int(start * RATE)
        tone = _paper(frequency, seconds) if instrument == "paper" else _struck(instrument, frequency, seconds)
        for index, value in enumerate(tone):
            if first + index < len(samples):
                samples[first + index] += loudness * value
    highest = max(abs(sample) for sample in samples)
    loudest = max(loudness for _, _, _, loudness, _ in tones)
    return [sample / highest * PEAK * min(1.0, loudest) for sample in samples]


def _struck(instrument, frequency, seconds):
    partials, attack = INSTRUMENTS[instrument]
    for index in range(int(seconds * RATE)):
        time = index / RATE
        value = sum(share * math.exp(-time / decay) * math.sin(2 * math.pi * frequency * multiple * time)
                    for multiple, share, decay in partials if frequency * multiple < RATE / 2)
        yield value * min(1.0, time / attack) * min(1.0, (seconds - time) / FADE)


def _paper(frequency, seconds):
    """A page that moves: noise around a frequency, swelling and dying away, the same at every build."""
    state, low, band = 20261121, 0.0, 0.0
    tuning = 2 * math.sin(math.pi * frequency / RATE)
    for index in range(int(seconds * RATE)):
        state = (state * 1664525 + 1013904223) % 2 ** 32
        noise = state / 2 ** 31 - 1
        low += tuning * band
        band += tuning * (noise - low - 0.7 * band)
        yield band * math.sin(math.pi * index / (seconds * RATE)) ** 2


def _wave(samples):
    data = array.array("h", (round(sample * 32767) for sample in samples))
    if sys.byteorder == "big":
        data.byteswap()
    file = io.BytesIO()
    with wave.open(file, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(data.tobytes())
    return file.getvalue()
