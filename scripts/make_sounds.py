#!/usr/bin/env python3
"""Makes data/Sounds/ListEnd.wav, the sound of a list's end: a short soft click.

usage: scripts/make_sounds.py [FOLDER]
"""
import array
import math
import os
import sys
import wave

RATE = 22050  # samples per second
SECONDS = 0.12
LOUDEST = 9000  # of 32767
TONES = ((440, 1.0), (1320, 0.35))  # Hz, share
ATTACK = 0.004  # seconds to the loudest moment
DECAY = 0.018  # seconds in which it falls to about a third


def sample(time):
    tone = sum(share * math.sin(2 * math.pi * frequency * time) for frequency, share in TONES)
    end = min(1.0, (SECONDS - time) / ATTACK)  # down to nothing, so that the end makes no click of its own
    loudness = min(1.0, time / ATTACK) * math.exp(-time / DECAY) * end
    return round(LOUDEST * loudness * tone)


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "data", "Sounds")
    samples = array.array("h", (sample(i / RATE) for i in range(int(RATE * SECONDS))))
    if sys.byteorder == "big":
        samples.byteswap()
    os.makedirs(folder, exist_ok=True)
    with wave.open(os.path.join(folder, "ListEnd.wav"), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


main()
