#!/usr/bin/env python3
"""Writes the program's sounds as small WAV files (16-bit mono, 22050 Hz).

right.wav: a soft rising two-note chime (E6 then A6) for a right answer. Each note is a sine with
a quiet octave overtone, a 5 ms fade-in (no click) and an exponential fade-out, so it sounds like a
small bell rather than a buzzer. The sound starts at its first sample: no leading silence.

Run it again after changing a sound:  python3 scripts/make-sounds.py resources/sounds
"""
import math
import struct
import sys
import wave

RATE = 22050


def note(freq, start, length, volume):
    """(first sample, samples) of one bell-like note."""
    n = int(length * RATE)
    attack = int(0.005 * RATE)
    out = []
    for i in range(n):
        t = i / RATE
        env = min(1.0, i / attack) * math.exp(-5.0 * t / length)
        s = math.sin(2 * math.pi * freq * t) + 0.25 * math.sin(4 * math.pi * freq * t)
        out.append(volume * env * s / 1.25)
    return int(start * RATE), out


def mix(notes, total):
    buf = [0.0] * int(total * RATE)
    for first, samples in notes:
        for i, s in enumerate(samples):
            if first + i < len(buf):
                buf[first + i] += s
    # A short fade at the very end so the last sample is silent.
    tail = int(0.01 * RATE)
    for i in range(tail):
        buf[len(buf) - 1 - i] *= i / tail
    return buf


def write(path, samples):
    with wave.open(path, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(b"".join(struct.pack("<h", int(max(-1, min(1, s)) * 32767)) for s in samples))


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else "resources/sounds"
    right = mix([note(1318.5, 0.0, 0.16, 0.35), note(1760.0, 0.09, 0.22, 0.35)], 0.32)
    write(folder + "/right.wav", right)


if __name__ == "__main__":
    main()
