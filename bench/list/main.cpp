// Measures a list of 100,000 files, in a process of its own: what a record takes in memory cannot
// be told where other things come and go.
#include "compare/HRFResultTable.h"
#include "conversions/HRFMetaFile+Patterns.h"
#include "conversions/HRFPatternString.h"
#include "document/HRFArrayController.h"
#include "list/HRFBenchRecords.h"
#include "sides/HRFOrThrow.h"
#include "store/HRFAttributeManager.h"
#include "store/HRFMainContext.h"
#include "store/HRFObjectStore.h"

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int recordCount = 100'000;
constexpr int roundCount = 5;

/// The memory of this process that is in use, in KB.
double residentKilobytes()
{
    constexpr double bytesPerKilobyte = 1024;
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages; // the second number is the resident size
    return double(pages) * double(::sysconf(_SC_PAGESIZE)) / bytesPerKilobyte;
}

std::shared_ptr<HRFMainContext> openList(const QString &folder)
{
    const auto model = HRFObjectModel::named(u"Lirra"_s);
    return std::make_shared<HRFMainContext>(
        model,
        HRFOrThrow(HRFObjectStore::open(folder + u"/list.sqlite"_s, model,
                                        HRFObjectStore::Migrates::Yes,
                                        HRFObjectStore::Durability::Session)));
}

HRFCost costOf(const std::function<void()> &work)
{
    const HRFCost before = HRFCost::spentBy(HRFCostOf::ThisProcess);
    work();
    return HRFCost::spentBy(HRFCostOf::ThisProcess) - before;
}

void measureSorting(HRFArrayController &list)
{
    std::vector<HRFCost> costs;
    for (int round = 0; round < roundCount; ++round)
        costs.push_back(
            costOf([&] { list.setSortDescriptors({{u"tags.title"_s, round % 2 == 0}}); }));
    HRFResultTable::printMilliseconds("sort 100,000 records by title", costs, 500);
}

void measureFiltering(HRFArrayController &list)
{
    const std::array names{u"title"_s,     u"artist"_s,   u"album"_s,   u"albumArtist"_s,
                           u"genre"_s,     u"composer"_s, u"comment"_s, u"isrc"_s,
                           u"publisher"_s, u"copyright"_s};
    HRFAttributeManager::Attributes attributes;
    for (const QString &name : names)
        attributes.push_back(
            HRFObjectModel::named(u"Lirra"_s)->entityNamed(u"MetaTags"_s)->attributeNamed(name));
    std::vector<HRFCost> costs;
    for (const QString &word : {u"velvet"_s, u"тиш"_s, u"records"_s, u"qwertz"_s, u"e"_s})
        costs.push_back(costOf([&] { list.setFilter(HRFRecordFilterForWords(word, attributes)); }));
    HRFResultTable::printMilliseconds("filter them by a word in ten columns", costs, 200);
}

void measureRendering(const HRFArrayController &list)
{
    HRFConversionContext context;
    context.usesNumericPadding = true;
    context.isNTFSFriendly = true;
    std::vector<HRFPatternItem> items;
    for (const auto &attribute :
         HRFObjectModel::named(u"Lirra"_s)->entityNamed(u"MetaTags"_s)->attributes)
        items.push_back(HRFPatternItem::itemWithAttribute(attribute));
    const HRFPattern pattern(
        HRFItemsForPatternString(u"%albumArtist%/%year% %album%/%trackNumber% %title%"_s, items),
        context);
    std::vector<HRFCost> costs;
    for (int round = 0; round < roundCount; ++round)
        costs.push_back(costOf([&] {
            for (const HRFMetaFile *file : list.arrangedObjects())
                if (HRFPathForPattern(*file, pattern).value_or(QString()).isEmpty())
                    throw std::runtime_error("A file has no path.");
        }));
    HRFResultTable::printMilliseconds("render a five-token pattern for 100,000 records", costs,
                                      300);
}

void measureAll(const QString &scratch)
{
    const auto context = openList(scratch);
    HRFArrayController list(*context);
    const double before = residentKilobytes();
    HRFInsertBenchRecords(context, scratch, recordCount);
    const double growth = residentKilobytes() - before;
    if (list.arrangedObjects().size() != recordCount)
        throw std::runtime_error("The list is not complete.");
    HRFResultTable::printKilobytes("memory per record in an open list", growth / recordCount, 3);
    measureSorting(list);
    measureFiltering(list);
    list.clearFilter();
    measureRendering(list);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "Usage: bench_list SCRATCH_FOLDER\n");
        return 2;
    }
    try {
        measureAll(QString::fromLocal8Bit(argv[1]));
        return 0;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "bench_list: %s\n", failure.what());
        return 1;
    }
}
