#!/usr/bin/env python3
"""Makes small audio files of every family as seeds for the fuzzer.

Usage: make_seeds.py OUTPUT [FIXTURES]

Writes OUTPUT/FAMILY/NAME, a few KB each. FIXTURES is a folder of audio files that are taken as well
when they are small enough. Needs ffmpeg.
"""

import pathlib
import shutil
import struct
import subprocess
import sys
import zlib

LARGEST_SEED = 64 * 1024

FAMILY_OF_SUFFIX = {
    ".mp2": "mpeg", ".mp3": "mpeg", ".mpga": "mpeg",
    ".m4a": "mp4", ".m4b": "mp4", ".m4p": "mp4", ".m4r": "mp4", ".m4v": "mp4", ".mp4": "mp4",
    ".aac": "mp4", ".flac": "flac", ".opus": "opus",
    ".wav": "wav", ".wave": "wav", ".bwf": "wav", ".ogg": "vorbis", ".oga": "vorbis",
    ".dsf": "dsf", ".dff": "dsdiff", ".dsdiff": "dsdiff",
    ".aif": "aiff", ".aiff": "aiff", ".aifc": "aiff", ".spx": "speex",
}

# File name -> how ffmpeg makes it.
ENCODINGS = {
    "vbr.mp3": ["-c:a", "libmp3lame", "-q:a", "9"],
    "v3.mp3": ["-c:a", "libmp3lame", "-b:a", "32k", "-id3v2_version", "3", "-write_id3v1", "1"],
    "layer2.mp2": ["-ar", "16000", "-c:a", "mp2", "-b:a", "32k"],
    "aac.m4a": ["-c:a", "aac", "-b:a", "24k"],
    "alac.m4a": ["-c:a", "alac"],
    "fast.m4a": ["-c:a", "aac", "-b:a", "24k", "-movflags", "faststart"],
    "fragments.mp4": ["-c:a", "aac", "-b:a", "24k", "-movflags", "frag_keyframe+empty_moov"],
    "plain.flac": ["-c:a", "flac"],
    "flac.oga": ["-c:a", "flac"],
    "vorbis.ogg": ["-ar", "16000", "-c:a", "libvorbis"],
    "opus.opus": ["-ar", "16000", "-c:a", "libopus", "-b:a", "16k"],
    "speex.spx": ["-ar", "8000", "-c:a", "libspeex"],
    "pcm.wav": ["-ar", "8000"],
    "float.wav": ["-ar", "8000", "-c:a", "pcm_f32le"],
    "rf64.wav": ["-ar", "8000", "-rf64", "always"],
    "pcm.aiff": ["-ar", "8000", "-write_id3v2", "1"],
    "compressed.aifc": ["-ar", "8000", "-c:a", "pcm_mulaw", "-f", "aiff", "-write_id3v2", "1"],
}

TAGS = {
    "title": "A title", "artist": "An artist", "album": "An album", "album_artist": "Others",
    "composer": "Someone", "genre": "Jazz", "date": "2001-02-03", "track": "2/9", "disc": "1/2",
    "comment": "A comment", "lyrics": "Words", "copyright": "Nobody", "compilation": "1",
}


def encode(target: pathlib.Path, options: list[str], tags: dict[str, str]) -> None:
    metadata = [part for name, value in tags.items() for part in ("-metadata", f"{name}={value}")]
    subprocess.run(
        ["ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-f", "lavfi",
         "-i", "sine=frequency=440:sample_rate=16000:duration=0.2",
         "-map_metadata", "-1", *options, *metadata, str(target)], check=True)


def id3_frame(name: bytes, content: bytes) -> bytes:
    return name + struct.pack(">IH", len(content), 0) + content


def id3_tag(version: int) -> bytes:
    if version == 2:
        frames = b"TT2\0\0\x03\0Hi" + b"PIC\0\0\x0A\0JPG\x03\0\xFF\xD8\xFF\xD9"
    else:
        frames = b"".join([
            id3_frame(b"TIT2", b"\x03A title"), id3_frame(b"TPE1", b"\x01\xFF\xFEA\0\0\0"),
            id3_frame(b"TRCK", b"\x002/9"), id3_frame(b"TDRC", b"\x002001-02-03"),
            id3_frame(b"COMM", b"\0engx\0A comment"), id3_frame(b"TXXX", b"\0WORK\0A work"),
            id3_frame(b"APIC", b"\0image/jpeg\0\x03\0\xFF\xD8\xFF\xD9"),
            id3_frame(b"POPM", b"me\0\xC8\0\0\0\x01"), id3_frame(b"PCST", bytes(4)),
            id3_frame(b"WFED", b"http://a.b"), id3_frame(b"USLT", b"\0eng\0words"),
            id3_frame(b"CHAP", b"c1\0" + bytes(16) + id3_frame(b"TIT2", b"\0Chapter")),
            id3_frame(b"CTOC", b"t\0\x03\x01c1\0" + id3_frame(b"TIT2", b"\0List")),
            id3_frame(b"RVA2", b"x\0\x01\0\0\x08\0"), id3_frame(b"ETCO", b"\x01\x01\0\0\0\1"),
            id3_frame(b"SYLT", b"\0eng\x02\x01\0la\0\0\0\0\1"), id3_frame(b"PRIV", b"me\0data"),
            id3_frame(b"UFID", b"me\0id"), id3_frame(b"OWNE", b"\0EUR1\x0020010203me"),
            id3_frame(b"GEOB", b"\0a/b\0f\0d\0data"),
        ])
    frames += bytes(16)
    size = bytes(len(frames) >> shift & 0x7F for shift in (21, 14, 7, 0))
    return b"ID3" + bytes([version, 0, 0]) + size + frames


def compressed_id3_tag() -> bytes:
    packed = zlib.compress(b"\0A packed title")
    frame = b"TIT2" + struct.pack(">IH", len(packed) + 4, 0x0009) + bytes([0, 0, 0, 15]) + packed
    return b"ID3\x04\0\0" + bytes([0, 0, 0, len(frame)]) + frame


def ape_tag() -> bytes:
    items = b"".join(struct.pack("<II", len(value), 0) + key + b"\0" + value for key, value in (
        (b"Title", b"A title"), (b"Artist", b"One\0Two"), (b"Track", b"2/9"), (b"Year", b"2001")))
    sizes = struct.pack("<III", 2000, len(items) + 32, 4)
    return (b"APETAGEX" + sizes + struct.pack("<I", 0xA0000000) + bytes(8) + items
            + b"APETAGEX" + sizes + struct.pack("<I", 0x80000000) + bytes(8))


def id3v1_tag() -> bytes:
    return b"TAG" + b"A title".ljust(30, b"\0") + bytes(60) + b"2001" + bytes(28) + b"\0\x02\x08"


def dsf(tag: bytes) -> bytes:
    audio = bytes(range(256)) * 2
    fmt = b"fmt " + struct.pack("<QIIIIIIQII", 52, 1, 0, 2, 1, 2822400, 1, 2048, 256, 0)
    data = b"data" + struct.pack("<Q", 12 + len(audio)) + audio
    end = 28 + len(fmt) + len(data)
    return (b"DSD " + struct.pack("<QQQ", 28, end + len(tag), end if tag else 0) + fmt + data + tag)


def iff_chunk(name: bytes, content: bytes) -> bytes:
    return name + struct.pack(">Q", len(content)) + content + bytes(len(content) % 2)


def dsdiff(tag: bytes, diin: bytes, audio_name: bytes = b"DSD ") -> bytes:
    properties = b"SND " + iff_chunk(b"FS  ", struct.pack(">I", 2822400)) \
        + iff_chunk(b"CHNL", b"\0\x01C   ") + iff_chunk(b"CMPR", b"DSD \x0Enot compressed\0")
    if tag and diin:
        properties += iff_chunk(b"ID3 ", tag)
    body = b"DSD " + iff_chunk(b"FVER", b"\x01\x05\0\0") + iff_chunk(b"PROP", properties) \
        + iff_chunk(audio_name, bytes(range(256)))
    if tag and not diin:
        body += iff_chunk(b"ID3 ", tag)
    if diin:
        body += iff_chunk(b"DIIN", diin)
    return b"FRM8" + struct.pack(">Q", len(body)) + body


def handmade(frames: bytes) -> dict[str, bytes]:
    texts = iff_chunk(b"DIAR", b"\0\0\0\x02Me") + iff_chunk(b"DITI", b"\0\0\0\x02Hi")
    tag = id3_tag(4)
    return {
        "mpeg/v2.mp3": id3_tag(2) + frames, "mpeg/v3.mp3": id3_tag(3) + frames,
        "mpeg/v4.mp3": tag + frames, "mpeg/packed.mp3": compressed_id3_tag() + frames,
        "mpeg/ape.mp3": frames + ape_tag(), "mpeg/all.mp3": tag + frames + ape_tag() + id3v1_tag(),
        "mpeg/double.mp3": tag + id3_tag(3) + frames, "mpeg/tag.mp3": tag,
        "dsf/plain.dsf": dsf(b""), "dsf/tagged.dsf": dsf(tag), "dsf/v3.dsf": dsf(id3_tag(3)),
        "dsdiff/plain.dff": dsdiff(b"", b""), "dsdiff/tagged.dff": dsdiff(tag, b""),
        "dsdiff/diin.dff": dsdiff(b"", texts), "dsdiff/both.dff": dsdiff(tag, texts),
        "dsdiff/dst.dff": dsdiff(tag, b"", b"DST "),
    }


def keep_seed(output: pathlib.Path, name: str, source: pathlib.Path) -> None:
    family = FAMILY_OF_SUFFIX.get(source.suffix.lower())
    if family and source.stat().st_size <= LARGEST_SEED:
        (output / family).mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, output / family / name)


def main() -> None:
    output = pathlib.Path(sys.argv[1])
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    for name, options in ENCODINGS.items():
        for prefix, tags in (("bare-", {}), ("tagged-", TAGS)):
            file = output / (prefix + name)
            encode(file, options, tags)
            keep_seed(output, file.name, file)
            file.unlink()
    frames = (output / "mpeg" / "bare-layer2.mp2").read_bytes()[:600]
    for name, content in handmade(frames).items():
        (output / name).parent.mkdir(exist_ok=True)
        (output / name).write_bytes(content)
    # A FLAC file may have ID3 tags around it.
    flac = (output / "flac" / "tagged-plain.flac").read_bytes()
    (output / "flac" / "id3.flac").write_bytes(id3_tag(4) + flac + id3v1_tag())
    if len(sys.argv) > 2:
        for file in sorted(path for path in pathlib.Path(sys.argv[2]).rglob("*") if path.is_file()):
            keep_seed(output, "fixture-" + file.name, file)


if __name__ == "__main__":
    main()
