#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes scrbar.wav, the sound of the panel when a category rolls in or out: a soft slide, as of a drawer.

Run it in this folder; the same file comes out every time. Noise through a low-pass filter whose cut-off rises
and falls, with the faint ticks of rollers under it.
"""

import math
import random
import struct
import wave

RATE = 22050
SECONDS = 0.55
TICKS_PER_SECOND = 27
PEAK = 0.28


def envelope(t):
    """Rises quickly, stays, fades out: 0 at both ends."""
    rise = min(1.0, t / 0.06)
    fade = min(1.0, (SECONDS - t) / 0.28)
    return (rise * fade) ** 1.5


def slide(random_source):
    """Yields filtered noise and ticks, one sample at a time."""
    low = lower = 0.0
    for n in range(int(RATE * SECONDS)):
        t = n / RATE
        cut_off = 350 + 900 * math.sin(math.pi * t / SECONDS)
        share = 1 - math.exp(-2 * math.pi * cut_off / RATE)
        low += share * (random_source.uniform(-1, 1) - low)
        lower += share * (low - lower)
        phase = (t * TICKS_PER_SECOND) % 1.0
        tick = 0.05 * math.exp(-phase * 30) * math.sin(2 * math.pi * 420 * phase / TICKS_PER_SECOND)
        yield envelope(t) * (lower + tick)


def main():
    samples = list(slide(random.Random(1)))
    scale = PEAK * 32767 / max(abs(sample) for sample in samples)
    with wave.open("scrbar.wav", "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(b"".join(struct.pack("<h", round(sample * scale)) for sample in samples))


if __name__ == "__main__":
    main()
