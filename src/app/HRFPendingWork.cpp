#include "app/HRFPendingWork.h"

#include "document/HRFPlaylist.h"
#include "kit/HRFUserInteraction.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto beforeFirstLook = 500ms; // what takes less is not worth a word
constexpr auto betweenLooks = 200ms;

} // namespace

HRFPendingWork::HRFPendingWork(HRFPlaylist &list, QWidget *parent)
    : QWidget(parent), m_list(list), m_label(new QLabel(this)), m_bar(new QProgressBar(this))
{
    constexpr QSize barSize(120, 12);
    setObjectName(u"pendingWork"_s);
    m_bar->setAccessibleName(tr("Writing Metadata"));
    m_bar->setTextVisible(false);
    m_bar->setFixedSize(barSize);
    auto *button = new QToolButton(this);
    button->setObjectName(u"cancelPendingWork"_s);
    button->setText(tr("Cancel"));
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, &HRFPendingWork::cancel);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    for (QWidget *part : {static_cast<QWidget *>(m_label), static_cast<QWidget *>(m_bar),
                          static_cast<QWidget *>(button)})
        row->addWidget(part);
    hide();
    connect(&m_timer, &QTimer::timeout, this, &HRFPendingWork::look);
    connect(&list, &HRFPlaylist::fileOperationsDidBegin, this, [this] {
        if (!m_timer.isActive())
            m_timer.start(beforeFirstLook);
    });
    connect(&list, &HRFPlaylist::fileOperationsDidEnd, this, [this] {
        if (m_timer.isActive())
            look();
    });
}

void HRFPendingWork::look()
{
    qlonglong done = 0;
    qlonglong total = 0;
    for (const auto &progress : m_list.pendingProgresses()) {
        done += progress->completedUnitCount();
        total += progress->totalUnitCount();
    }
    setVisible(total > 0);
    if (total == 0)
        return m_timer.stop();
    m_timer.start(betweenLooks);
    const QLocale locale;
    m_label->setText(tr("Writing: %1 of %2").arg(locale.toString(done), locale.toString(total)));
    m_bar->setMaximum(int(total));
    m_bar->setValue(int(done));
}

void HRFPendingWork::cancel()
{
    const HRFAlert question{
        .message = tr("Are you sure you want to cancel the remaining operations?"),
        .informativeText = tr("Files that are not written yet keep their tags as they are, though "
                              "the list shows the new ones."),
        .buttons = {{.title = tr("Yes"), .role = HRFAnswerRole::Accept, .isDestructive = true},
                    {.title = tr("No"), .role = HRFAnswerRole::Cancel}},
        .defaultButton = 1,
        .owner = &m_list};
    if (HRFUserInteraction::current().runAlert(question).button == 0)
        for (const auto &progress : m_list.pendingProgresses())
            progress->cancel();
}
