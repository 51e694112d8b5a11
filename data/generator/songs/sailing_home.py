"""A little film: a boat sails home past a lighthouse at dusk, with a tune and the surf."""

import math

import sound
import video

FILE_NAME = "Sailing Home.avi"
WIDTH, HEIGHT, FRAME_RATE, SECONDS = 320, 240, 25, 4
HORIZON = 150

# Colours: the sky from above to the horizon, the sea from there down, then single things.
SKY = [(20 + 14 * i, 24 + 7 * i, 70 + 5 * i) for i in range(14)]
SEA = [(70 - 5 * i, 74 - 4 * i, 118 - 5 * i) for i in range(10)]
THINGS = {"sun": (255, 190, 90), "glow": (244, 150, 90), "wave": (132, 132, 166),
          "glitter": (255, 206, 130), "hull": (96, 44, 36), "deck": (150, 84, 56),
          "sail": (250, 240, 222), "jib": (226, 208, 186), "mast": (70, 48, 44),
          "rock": (38, 32, 54), "tower": (232, 226, 220), "band": (178, 52, 52),
          "lamp": (255, 244, 170), "beam": (214, 176, 150), "star": (236, 232, 246),
          "flag": (200, 60, 60)}
PALETTE = SKY + SEA + list(THINGS.values())
COLOUR = {name: len(SKY) + len(SEA) + i for i, name in enumerate(THINGS)}
STARS = [(23, 14), (61, 40), (104, 11), (143, 33), (188, 17), (214, 44), (255, 9), (301, 25),
         (83, 62), (170, 58)]


def sky(canvas, time):
    for y in range(HORIZON):
        canvas.span(y, 0, WIDTH, y * len(SKY) // HORIZON)
    for index, (x, y) in enumerate(STARS):
        if math.sin(time * 3 + index * 1.7) > -0.4:
            canvas.span(y, x, x + 1, COLOUR["star"])
    canvas.disc(96, HORIZON + 4, 34, COLOUR["glow"])
    canvas.disc(96, HORIZON + 4, 28, COLOUR["sun"])


def sea(canvas, time):
    for y in range(HORIZON, HEIGHT):
        canvas.span(y, 0, WIDTH, len(SKY) + (y - HORIZON) * len(SEA) // (HEIGHT - HORIZON))
    for row in range(12):
        y = HORIZON + 3 + row * row * 6 // 10
        spacing = 26 + 5 * row
        for index in range(-1, WIDTH // spacing + 2):
            x = index * spacing + math.sin(row * 2.4) * 30 + 7 * math.sin(time * 1.6 + row)
            length = 6 + row + 3 * math.sin(time * 2 + index * 2 + row)
            canvas.span(y, x, x + length, COLOUR["wave"])
        width = 26 - row + 5 * math.sin(time * 5 + row * 2)
        shift = 3 * math.sin(time * 4 + row)
        canvas.span(y + 1, 96 - width + shift, 96 + width + shift, COLOUR["glitter"])


def lighthouse(canvas, time):
    angle = time * math.pi / 2 + 0.6
    reach = math.cos(angle)
    tip = 268 - 420 * reach
    if abs(reach) > 0.05:
        width = 10 + 14 * abs(reach)
        canvas.polygon([(268, 78), (tip, 70 - width), (tip, 70 + width), (268, 82)],
                       COLOUR["beam"], every=2)
    canvas.polygon([(222, 156), (240, 140), (262, 134), (284, 138), (304, 148), (320, 150),
                    (320, 164), (222, 164)], COLOUR["rock"])
    canvas.polygon([(260, 86), (276, 86), (281, 138), (255, 138)], COLOUR["tower"])
    canvas.polygon([(258.5, 100), (277.5, 100), (279, 114), (257, 114)], COLOUR["band"])
    canvas.polygon([(256, 126), (280, 126), (281, 138), (255, 138)], COLOUR["band"])
    canvas.box(258, 84, 278, 87, COLOUR["mast"])
    canvas.box(262, 75, 274, 84, COLOUR["lamp"])
    canvas.polygon([(260, 75), (276, 75), (268, 67)], COLOUR["band"])


def boat(canvas, time):
    x = 40 + 30 * time
    y = 196 + 3 * math.sin(time * 2.4)
    tilt = 0.07 * math.sin(time * 2.4 + 0.8)

    def place(*points):
        return [(x + px * math.cos(tilt) - py * math.sin(tilt),
                 y + px * math.sin(tilt) + py * math.cos(tilt)) for px, py in points]

    canvas.polygon(place((-1, -64), (1, -64), (1, 0), (-1, 0)), COLOUR["mast"])
    canvas.polygon(place((3, -60), (3, -6), (34, -6), (20, -34)), COLOUR["sail"])
    canvas.polygon(place((-3, -54), (-3, -6), (-26, -6)), COLOUR["jib"])
    wind = 2 * math.sin(time * 9)
    canvas.polygon(place((0, -70), (0, -64), (-13, -67 + wind)), COLOUR["flag"])
    canvas.polygon(place((-34, -4), (40, -4), (30, 10), (-24, 10)), COLOUR["hull"])
    canvas.polygon(place((-34, -4), (40, -4), (38, -1), (-32, -1)), COLOUR["deck"])
    for step in range(4):
        width = 34 - 7 * step + 4 * math.sin(time * 6 + step)
        canvas.span(round(y + 11 + 3 * step), x - width, x + width, COLOUR["wave"])


def build():
    frames = []
    for number in range(FRAME_RATE * SECONDS):
        time = number / FRAME_RATE
        canvas = video.Canvas(WIDTH, HEIGHT)
        for draw in (sky, sea, lighthouse, boat):
            draw(canvas, time)
        frames.append(video.run_lengths(canvas))
    samples = [0.0] * (sound.RATE * SECONDS)
    sound.play(samples, "d5:q. e:e f#:q a b:q. a:e d6:h", 0.05, 0.42, 0.4, 0.6)
    sound.play(samples, "d3+a3+f#4:h g2+b3+d4 d3+a3+f#4:h", 0.05, 0.84, 0.16, 0.9, sound.SOFT)
    sound.surf(samples, 2.0, 0.9)
    sound.echo(samples, 0.24, 0.2)
    return video.avi_file(frames, PALETTE, WIDTH, HEIGHT, FRAME_RATE, sound.pcm(samples, fade=0.5))
