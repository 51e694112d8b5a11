"""The demo songs, one file each. Every module has FILE_NAME and build(), which returns the bytes.
"""

OWN_TUNE = "(c) 2026 The Zephyne developers. MIT License."


def arrangement_of(composer):
    return f"{composer}: public domain. Arrangement (c) 2026 The Zephyne developers. MIT License."
