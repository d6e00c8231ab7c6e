#include "compare/HRFMeasurements.h"

#include "compare/HRFProcess.h"
#include "compare/HRFResultTable.h"
#include "sides/HRFBenchSide.h"
#include "sides/HRFFilesBelow.h"
#include "sides/HRFListSide.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Files = std::vector<fs::path>;

constexpr int roundCount = 5;

/// Files are read and written in parts of this size, between which the sides take turns.
constexpr std::size_t filesPerPart = 250;

std::size_t partCountOf(const Files &files)
{
    return (files.size() + filesPerPart - 1) / filesPerPart;
}

std::span<const fs::path> partOf(const Files &files, std::size_t part)
{
    const std::size_t begin = part * filesPerPart;
    return std::span(files).subspan(begin, std::min(filesPerPart, files.size() - begin));
}

void measureReading(const HRFMeasuringPlace &place)
{
    const Files files = HRFFilesBelow(place.corpus);
    const auto reader = [&files](const HRFBenchSide &side) {
        return [&files, &side](std::size_t part) {
            for (const fs::path &file : partOf(files, part))
                side.read(file);
        };
    };
    const HRFContest contest{.lirra = reader(HRFEngineSide),
                             .plain = reader(HRFPlainTagLibSide),
                             .partCount = partCountOf(files)};
    HRFResultTable::printRatio("read all properties and the picture",
                               HRFCompare(contest, roundCount), 1.3);
}

void measureShowing(const HRFMeasuringPlace &place)
{
    const std::string show = place.programs / "lirra-cli";
    const std::string read = place.programs / "bench_taglib_read";
    const HRFContest contest{
        .lirra = [&](std::size_t) { HRFRunProcess({show, "show", "--json", place.corpus}); },
        .plain = [&](std::size_t) { HRFRunProcess({read, place.corpus}); },
        .costOf = HRFCostOf::ChildProcesses};
    HRFResultTable::printRatio("lirra-cli show --json, whole process",
                               HRFCompare(contest, roundCount), 1.6);
}

/// Copies the first files of the corpus.
Files copyFiles(const fs::path &corpus, const fs::path &folder, std::size_t count)
{
    Files copies;
    for (const fs::path &file : HRFFilesBelow(corpus)) {
        if (copies.size() == count)
            break;
        copies.push_back(folder / fs::relative(file, corpus));
        fs::create_directories(copies.back().parent_path());
        fs::copy_file(file, copies.back());
    }
    return copies;
}

/// A title of always the same length that no call has answered before.
std::string nextTitle()
{
    static int number = 1'000'000;
    return "Title number " + std::to_string(++number);
}

constexpr std::size_t fileCountToWrite = 2000;

void measureWriting(const HRFMeasuringPlace &place)
{
    const Files files = copyFiles(place.corpus, place.scratch / "engines", fileCountToWrite);
    const auto writer = [&files](const HRFBenchSide &side) {
        return [&files, &side](std::size_t part) {
            const std::string title = nextTitle();
            for (const fs::path &file : partOf(files, part))
                side.writeTitle(file, title);
        };
    };
    // Neither side shall wait for the disk to take what the other one has written.
    const HRFContest contest{.lirra = writer(HRFEngineSide),
                             .plain = writer(HRFPlainTagLibSide),
                             .partCount = partCountOf(files),
                             .prepare = ::sync};
    HRFResultTable::printRatio("write the title", HRFCompare(contest, roundCount), 1.2);
}

void measureImporting(const HRFMeasuringPlace &place)
{
    std::unique_ptr<HRFListSide> list;
    const Files files = HRFFilesBelow(place.corpus);
    const auto readAll = [&](std::size_t) {
        for (const fs::path &file : files)
            HRFPlainTagLibSide.read(file);
    };
    const HRFContest contest{.lirra = [&](std::size_t) { list->import(place.corpus); },
                             .plain = readAll,
                             .prepare =
                                 [&list] {
                                     list.reset();
                                     list = std::make_unique<HRFListSide>();
                                 }};
    HRFResultTable::printRatio("import into a list until it is saved",
                               HRFCompare(contest, roundCount), 1.0);
}

void measureWritingThroughQueue(const HRFMeasuringPlace &place)
{
    const fs::path folder = place.scratch / "list";
    HRFListSide list;
    const Files files = copyFiles(place.corpus, folder, fileCountToWrite);
    list.import(folder);
    const HRFContest contest{
        .lirra = [&](std::size_t) { list.writeTitle(0, list.fileCount(), nextTitle()); },
        .plain =
            [&](std::size_t) {
                const std::string title = nextTitle();
                for (const fs::path &file : files)
                    HRFPlainTagLibSide.writeTitle(file, title);
            },
        .prepare = ::sync};
    HRFResultTable::printRatio("write the title through the queue", HRFCompare(contest, roundCount),
                               1.3);
}

/// A beginning of names that no call has answered before.
std::string nextPrefix()
{
    static int number = 1'000'000;
    return "renamed " + std::to_string(++number) + ' ';
}

void measureRenaming(const HRFMeasuringPlace &place)
{
    const fs::path folder = place.scratch / "renamed in a list";
    Files plainFiles = copyFiles(place.corpus, place.scratch / "renamed plainly", fileCountToWrite);
    copyFiles(place.corpus, folder, fileCountToWrite);
    HRFListSide list;
    list.import(folder);
    const auto renamePlainly = [&](std::size_t) {
        const std::string prefix = nextPrefix();
        for (std::size_t i = 0; i < plainFiles.size(); ++i) {
            const fs::path name = prefix + std::to_string(i) + plainFiles[i].extension().string();
            const fs::path renamed = plainFiles[i].parent_path() / name;
            fs::rename(plainFiles[i], renamed);
            plainFiles[i] = renamed;
        }
    };
    const HRFContest contest{.lirra = [&](std::size_t) { list.rename(nextPrefix()); },
                             .plain = renamePlainly};
    HRFResultTable::printRatio("rename through a list, against rename(2)",
                               HRFCompare(contest, roundCount), 2.0);
}

void measureDryRun(const HRFMeasuringPlace &place)
{
    const std::string program = place.programs / "lirra-cli";
    const std::vector<std::string> dryRun{
        program,     "--dry-run",   "--on-conflict",
        "keep-both", "--dot-names", "remove",
        "rename",    "--pattern",   "%artist% - %trackNumber% %title%",
        place.corpus};
    const HRFContest contest{
        .lirra = [&](std::size_t) { HRFRunProcess(dryRun); },
        .plain = [&](std::size_t) { HRFRunProcess({program, "show", place.corpus}); },
        .costOf = HRFCostOf::ChildProcesses};
    HRFResultTable::printRatio("rename --dry-run, against lirra-cli show",
                               HRFCompare(contest, roundCount), 1.0);
}

void measureStart(const HRFMeasuringPlace &place)
{
    constexpr int runCount = 20;
    const std::string file = HRFFilesBelow(place.corpus).front();
    const HRFContest contest{
        .lirra = [&](std::size_t) { HRFRunProcess({place.programs / "lirra-cli", "show", file}); },
        .plain = [](std::size_t) {},
        .costOf = HRFCostOf::ChildProcesses};
    HRFResultTable::printMilliseconds("start lirra-cli show on one file",
                                      HRFCompare(contest, runCount).lirra, 40);
}

struct Measurement
{
    std::string_view name;
    void (*measure)(const HRFMeasuringPlace &place);
};

constexpr Measurement measurements[] = {
    {"read", measureReading},
    {"show", measureShowing},
    {"write", measureWriting},
    {"import", measureImporting},
    {"queue", measureWritingThroughQueue},
    {"rename", measureRenaming},
    {"dry-run", measureDryRun},
    {"start", measureStart},
};

} // namespace

void HRFMeasure(const HRFMeasuringPlace &place, std::span<const std::string_view> names)
{
    for (const std::string_view name : names)
        if (std::ranges::find(measurements, name, &Measurement::name) == std::end(measurements))
            throw std::runtime_error("there is no measurement “" + std::string(name) + "”");
    HRFResultTable::printHead();
    for (const Measurement &measurement : measurements)
        if (names.empty() || std::ranges::find(names, measurement.name) != names.end())
            measurement.measure(place);
}
