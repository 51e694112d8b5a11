"""The three synthesizer resets: MIDI files of a tenth of a second that are played before a song, so
that nothing of the last one is left. A tick is a millisecond."""

import midi_writer as smf

END = 98
GM_ON = bytes([0x7E, 0x7F, 0x09, 0x01, 0xF7])
XG_ON = bytes([0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7])
GS_RESET = bytes([0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x7F, 0x00, 0x41, 0xF7])

ALL_SOUND_OFF, RESET_CONTROLLERS = 120, 121
BANK_MSB, BANK_LSB, DATA_MSB, DATA_LSB, RPN_LSB, RPN_MSB = 0, 32, 6, 38, 100, 101
VOLUME, PAN, EXPRESSION = 7, 10, 11
DRUM_CHANNEL = 9
XG_DRUM_BANK = 127


def silence(track, tick):
    for channel in range(16):
        track.control(tick, channel, ALL_SOUND_OFF, 0)


def restore_channel(track, tick, channel, bank):
    """What a synthesizer that knows none of the messages above would otherwise keep."""
    settings = ((ALL_SOUND_OFF, 0), (RESET_CONTROLLERS, 0), (VOLUME, 100), (PAN, 64),
                (EXPRESSION, 127), (RPN_MSB, 0), (RPN_LSB, 0), (DATA_MSB, 2), (DATA_LSB, 0),
                (RPN_MSB, 127), (RPN_LSB, 127), (BANK_MSB, bank), (BANK_LSB, 0))
    for controller, value in settings:
        track.control(tick, channel, controller, value)
    track.program(tick, channel, 0)
    track.bend(tick, channel, 0)


def sequence(name, messages, drum_bank):
    """`messages` are (tick, system exclusive). The channels follow one by one, to spread them."""
    track = smf.Track(name)
    track.tempo(0, 120)
    silence(track, 0)
    for tick, message in messages:
        track.system_exclusive(tick, message)
    for channel in range(16):
        bank = drum_bank if channel == DRUM_CHANNEL else 0
        restore_channel(track, 60 + 2 * channel, channel, bank)
    return smf.midi_file(0, smf.ticks_per_quarter(500), [track], END)


def files():
    """{file name: bytes}"""
    return {
        "gm_reset.aut": sequence("GM System On", [(1, GM_ON)], 0),
        # In XG the drum channel is told by its bank, and XG comes on top of GM.
        "xg_reset.aut": sequence("XG System On", [(1, GM_ON), (45, XG_ON)], XG_DRUM_BANK),
        "gs_reset.aut": sequence("GS Reset", [(1, GS_RESET)], 0),
    }
