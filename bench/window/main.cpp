// Measures the window of a list of 100,000 files, as its user meets it: what appears late, and how
// long it does not answer meanwhile.
#include "app/HRFApplicationDelegate.h"
#include "app/HRFListColumn.h"
#include "app/HRFListHeader.h"
#include "app/HRFListModel.h"
#include "app/HRFListView.h"
#include "app/HRFListWindow.h"
#include "app/HRFSidebar.h"
#include "app/HRFWidgetsInteraction.h"
#include "compare/HRFProcess.h"
#include "compare/HRFResultTable.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFBackground.h"
#include "list/HRFBenchRecords.h"
#include "sides/HRFOrThrow.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"
#include "tags/HRFTagEngine.h"
#include "window/HRFEventLoopWatchdog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

constexpr int recordCount = 100'000;
constexpr int editedCount = 10'000;
constexpr int startCount = 5;
constexpr QStringView editedText = u"Edited together";
constexpr int pageCount = 400;

constexpr double startTarget = 500; // all in milliseconds
constexpr double sortTarget = 500;
constexpr double filterTarget = 200;
constexpr double pageTarget = 1000. / 60;
constexpr double blockTarget = 100;

/// Ends the program when a widget has been painted.
class EndAfterPaint : public QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

int showWindow(const QString &scratch)
{
    const auto folder = HRFOrThrow(HRFDataFolder::take(scratch + u"/start"_s));
    HRFApplicationDelegate application;
    EndAfterPaint end;
    application.newList().view().viewport()->installEventFilter(&end);
    return QApplication::exec();
}

void measureStart(const std::string &program, const std::string &scratch)
{
    std::vector<HRFCost> costs;
    for (int round = 0; round < startCount; ++round) {
        const HRFCost before = HRFCost::spentBy(HRFCostOf::ChildProcesses);
        HRFRunProcess({program, scratch, "start"});
        costs.push_back(HRFCost::spentBy(HRFCostOf::ChildProcesses) - before);
    }
    HRFResultTable::printMilliseconds("start with an empty window", costs, startTarget);
}

HRFCost costOf(const std::function<void()> &work)
{
    const HRFCost before = HRFCost::spentBy(HRFCostOf::ThisProcess);
    work();
    return HRFCost::spentBy(HRFCostOf::ThisProcess) - before;
}

/// What a user does in the window, and how long that takes.
class Session
{
public:
    explicit Session(HRFListWindow &window) : m_window(window)
    {
        QObject::connect(&window.document(), &HRFPlaylist::fileOperationsDidEnd, &m_watchdog,
                         [this] { ++m_endedBatches; });
    }

    void fill(const QString &folder)
    {
        const auto context = m_window.document().fileManager().managedObjectContext();
        HRFInsertBenchRecords(context, folder, recordCount, editedCount);
        m_watchdog.longestBlockUntil([] { return true; });
        if (m_window.model().rowCount() != recordCount)
            throw std::runtime_error("The list is not complete.");
    }
    void measureSorting()
    {
        std::vector<HRFCost> costs;
        for (const QString &column : {u"title"_s, u"album"_s, u"trackNumber"_s, u"fileName"_s})
            costs.push_back(costOf([&] {
                m_window.header().sortBy(HRFListColumns::indexOf(column), false);
                paint();
            }));
        HRFResultTable::printMilliseconds("sort 100,000 rows", costs, sortTarget);
    }
    void measureFiltering()
    {
        bool isFiltered = false;
        QObject::connect(&m_window.document().fileController(),
                         &HRFArrayController::arrangementDidChange, &m_watchdog,
                         [&isFiltered] { isFiltered = true; });
        std::vector<HRFCost> costs;
        for (const QString &word : {u"e"_s, u"velvet"_s, u"a"_s, u"qwertz"_s, QString()})
            costs.push_back(costOf([&] {
                isFiltered = false;
                m_window.filterField().setText(word);
                m_watchdog.longestBlockUntil([&isFiltered] { return isFiltered; });
                paint();
            }));
        HRFResultTable::printMilliseconds("filter them by another word", costs, filterTarget);
    }
    void measureScrolling()
    {
        QScrollBar &bar = *m_window.view().verticalScrollBar();
        std::vector<HRFCost> costs;
        for (int page = 0; page < pageCount; ++page)
            costs.push_back(costOf([&] {
                bar.setValue(int(qlonglong(bar.maximum()) * page / pageCount));
                paint();
            }));
        HRFResultTable::printMilliseconds("scroll by 250 rows", costs, pageTarget);
    }
    void measureSelecting()
    {
        const HRFListModel &model = m_window.model();
        m_window.view().selectionModel()->select(
            {model.index(0, 0), model.index(editedCount - 1, 0)},
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        printBlock("select 10,000 rows, longest block",
                   [this] { return !field().placeholderText().isEmpty(); });
    }
    void measureEditing()
    {
        QLineEdit &line = field();
        line.setFocus();
        line.setText(editedText.toString());
        line.setModified(true);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, {});
        QApplication::sendEvent(&line, &event);
        printBlock("edit them in the sidebar, longest block",
                   [this] { return m_endedBatches == 1; });
        requireEdited(true);
        m_window.undo();
        printBlock("undo that, longest block", [this] { return m_endedBatches == 2; });
        requireEdited(false);
    }

private:
    QLineEdit &field() const
    {
        return *m_window.sidebar().findChild<QLineEdit *>(u"field.artist"_s);
    }
    void paint() const { m_window.view().viewport()->repaint(); }
    void requireEdited(bool isEdited) const
    {
        for (const int row : {0, editedCount - 1}) {
            const HRFFileReference file = *m_window.model().recordAt(row).url();
            const auto engine = HRFOrThrow(HRFTagEngine::initWithURL(file));
            const QString artist = engine->valueForKey(HRFTagKey::artist).toString();
            if ((artist == editedText) != isEdited)
                throw std::runtime_error("The files do not say what they should.");
        }
    }
    void printBlock(const char *label, const std::function<bool()> &until)
    {
        HRFCost block;
        block.elapsed = m_watchdog.longestBlockUntil(until);
        HRFResultTable::printMilliseconds(label, {block}, blockTarget);
    }

    HRFListWindow &m_window;
    HRFEventLoopWatchdog m_watchdog;
    int m_endedBatches = 0;
};

void measureAll(const QString &scratch)
{
    const HRFWidgetsInteraction interaction;
    const auto folder = HRFOrThrow(HRFDataFolder::take(scratch + u"/data"_s));
    HRFApplicationDelegate application;
    Session session(application.newList());
    session.fill(scratch + u"/music"_s);
    session.measureSelecting();
    session.measureEditing();
    session.measureSorting();
    session.measureFiltering();
    session.measureScrolling();
    HRFBackground::waitUntilIdle();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const bool isStart = arguments.size() == 3 && arguments[2] == u"start"_s;
    if (arguments.size() != 2 && !isStart) {
        std::fprintf(stderr, "Usage: bench_window SCRATCH_FOLDER [start]\n");
        return 2;
    }
    try {
        if (isStart)
            return showWindow(arguments[1]);
        measureStart(argv[0], argv[1]);
        measureAll(arguments[1]);
        return 0;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "bench_window: %s\n", failure.what());
        return 1;
    }
}
