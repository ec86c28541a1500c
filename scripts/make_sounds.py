#!/usr/bin/env python3
"""Makes the sounds in data/Sounds: ListEnd.wav, a short soft click for a list's end, and NoFunction.wav, a low soft tick
for a key that does nothing.

usage: scripts/make_sounds.py [FOLDER]
"""
import array
import math
import os
import sys
import wave

RATE = 22050  # samples per second
ATTACK = 0.004  # seconds to the loudest moment

SOUNDS = {  # seconds; the loudest, of 32767; Hz and share of each tone; seconds in which it falls to about a third
    "ListEnd": (0.12, 9000, ((440, 1.0), (1320, 0.35)), 0.018),
    "NoFunction": (0.06, 6000, ((165, 1.0), (330, 0.25)), 0.012),
}


def sample(time, seconds, loudest, tones, decay):
    tone = sum(share * math.sin(2 * math.pi * frequency * time) for frequency, share in tones)
    end = min(1.0, (seconds - time) / ATTACK)  # down to nothing, so that the end makes no click of its own
    loudness = min(1.0, time / ATTACK) * math.exp(-time / decay) * end
    return round(loudest * loudness * tone)


def write(path, seconds, *shape):
    samples = array.array("h", (sample(i / RATE, seconds, *shape) for i in range(int(RATE * seconds))))
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(path, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "data", "Sounds")
    os.makedirs(folder, exist_ok=True)
    for name, shape in SOUNDS.items():
        write(os.path.join(folder, name + ".wav"), *shape)


main()
