"""A short greeting on chime bars, as a wave file."""

import sound

FILE_NAME = "Good Evening.wav"


def build():
    samples = [0.0] * round(5.0 * sound.RATE)
    sound.play(samples, "g4:e c5 e g:q e:e a:q. g:e e c:q", 0.05, 0.44, 0.5, 0.5)
    sound.play(samples, "c3+e4:h a2+e4 f2+c4:q g2+b3 c3+e4:h", 0.05, 0.44, 0.22, 0.7,
               sound.SOFT)
    sound.play(samples, "c6:e g c7", 3.14, 0.3, 0.2, 0.5)
    sound.echo(samples, 0.21, 0.22)
    return sound.wave_file(sound.pcm(samples, fade=0.6))
