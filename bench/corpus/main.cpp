#include "corpus/HRFCorpusKind.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr int fileCount = 10000;
constexpr int tracksPerAlbum = 12;
constexpr std::uintmax_t roomPerFile = 150 << 10; // a picture at its largest, audio and texts

std::string threeDigits(int number)
{
    constexpr int firstOfFourDigits = 1000;
    return std::to_string(firstOfFourDigits + number).substr(1);
}

void writeFile(const fs::path &path, const std::string &contents)
{
    std::ofstream file(path, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.write(contents.data(), std::streamsize(contents.size()));
    file.close();
}

void writeAlbum(const fs::path &root, int number, int trackCount)
{
    const HRFCorpusAlbum album = HRFMakeCorpusAlbum(number, trackCount);
    const HRFCorpusKind &kind = HRFCorpusKindOfAlbum(number);
    const fs::path folder = root / ("Album " + threeDigits(number));
    fs::create_directory(folder);
    for (const HRFCorpusTrack &track : album.tracks)
        writeFile(folder / (threeDigits(track.number) + ' ' + track.title + '.' + kind.extension),
                  kind.fileContents(album, track));
}

bool hasRoom(const fs::path &root)
{
    constexpr std::uintmax_t mebibyte = 1 << 20;
    const std::uintmax_t needed = fileCount * roomPerFile;
    const std::uintmax_t available = fs::space(root).available;
    if (available >= needed)
        return true;
    std::fprintf(stderr,
                 "bench_make_corpus: %s: not enough disk space: up to %ju MiB are needed, "
                 "%ju MiB are free\n",
                 root.c_str(), needed / mebibyte, available / mebibyte);
    return false;
}

int makeCorpus(const fs::path &root)
{
    fs::create_directories(root);
    if (!fs::is_empty(root)) {
        std::fprintf(stderr, "bench_make_corpus: %s: the folder is not empty\n", root.c_str());
        return 1;
    }
    if (!hasRoom(root))
        return 1;
    for (int made = 0, album = 0; made < fileCount; made += tracksPerAlbum, ++album)
        writeAlbum(root, album, std::min(tracksPerAlbum, fileCount - made));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: bench_make_corpus FOLDER\n");
        return 2;
    }
    try {
        return makeCorpus(argv[1]);
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "bench_make_corpus: %s\n", failure.what());
        return 1;
    }
}
