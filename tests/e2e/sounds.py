"""An ear for what the program plays: each of its sounds is a tone of its own."""

import math
import struct
import wave

from kalvora import Kalvora

RATE = 44100
LENGTH = RATE // 4  # a quarter of a second
TONES = {"press": 500, "delete": 1000, "hide": 2000, "show": 4000, "alarm": 750}  # Hertz
KEYS = {"Snd_Button_Press": "press", "Snd_Button_Delete": "delete", "Snd_Hide": "hide", "Snd_Show": "show",
        "Snd_Alarm": "alarm"}

# What the program plays goes into a file instead of a loudspeaker, each sound into one of its own.
SOUND_CARD = """</usr/share/alsa/alsa.conf>
pcm.!default {{
  type plug
  slave {{
    pcm {{ type file slave.pcm null file "{file}" format raw truncate 0 }}
    format S16_LE
    rate {rate}
    channels 1
  }}
}}
"""


class AudibleKalvora(Kalvora):
    """The program with a different tone for each of its sounds, and an ear that knows them."""

    def __enter__(self):
        program = super().__enter__()
        self._recordings = self.folder / "recordings"
        self._recordings.mkdir()
        self.wine.ask("regwrite", "Software\\Wine\\Drivers", "Audio", "alsa")
        card = SOUND_CARD.format(file=self._recordings / "heard", rate=RATE)
        self.write("sound-card.conf", card)
        self.environment["ALSA_CONFIG_PATH"] = str(self.folder / "sound-card.conf")
        for name, tone in TONES.items():
            self._make_wave(name, tone)
        for key, name in KEYS.items():
            self.set_setting("Sounds", key, "Z:" + str(self.folder / f"{name}.wav").replace("/", "\\"))
        return program

    def _make_wave(self, name, tone):
        samples = (round(20000 * math.sin(2 * math.pi * tone * i / RATE)) for i in range(LENGTH))
        with wave.open(str(self.folder / f"{name}.wav"), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(b"".join(struct.pack("<h", sample) for sample in samples))

    def heard(self):
        """The names of the tones that were played whole, in their order."""
        return [self._tone_of(file.read_bytes()) for file in sorted(self._recordings.iterdir())
                if file.stat().st_size >= 2 * LENGTH]

    @staticmethod
    def _tone_of(recording):
        samples = struct.unpack(f"<{len(recording) // 2}h", recording[:len(recording) // 2 * 2])
        loud = [sample for sample in samples if abs(sample) > 2000]
        assert len(loud) > LENGTH / 2, "nearly silence"
        # The quiet samples around each crossing are left out, so every change of sign counts once.
        crossings = sum((a > 0) != (b > 0) for a, b in zip(loud, loud[1:]))
        frequency = crossings / 2 * RATE / LENGTH
        name, tone = min(TONES.items(), key=lambda one: abs(one[1] - frequency))
        assert abs(tone - frequency) < tone / 10, f"a tone of {frequency:.0f} Hertz"
        return name

    def expect(self, *names):
        """Waits until these tones, and no others, have been heard since the start."""
        self.wait_until(lambda: len(self.heard()) >= len(names), f"the sounds {names}")
        assert self.heard() == list(names), self.heard()
