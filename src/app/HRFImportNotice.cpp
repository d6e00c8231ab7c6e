#include "app/HRFImportNotice.h"

#include "app/HRFIcons.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFUserInteraction.h"

#include <QLocale>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The user is told of these by the import itself.
bool isInvalidFile(const HRFFileProblem &problem)
{
    return HRFIsUnreadableFile(problem.error);
}

} // namespace

HRFImportNotice::HRFImportNotice(HRFPlaylist &list, QWidget *parent)
    : QToolButton(parent), m_list(list)
{
    setObjectName(u"importNotice"_s);
    setIcon(HRFIcons::named(u"warning"_s));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(tr("Show what was not added, and why"));
    add({});
    connect(&list.fileManager(), &HRFMetaFileManager::filesWereNotImported, this,
            &HRFImportNotice::add);
    connect(this, &QToolButton::clicked, this, &HRFImportNotice::explain);
}

void HRFImportNotice::add(const std::vector<HRFFileProblem> &problems)
{
    std::ranges::remove_copy_if(problems, std::back_inserter(m_problems), isInvalidFile);
    setText(
        m_problems.size() == 1
            ? tr("1 item was not added")
            : tr("%1 items were not added").arg(QLocale().toString(qulonglong(m_problems.size()))));
    setVisible(!m_problems.empty());
}

void HRFImportNotice::explain()
{
    constexpr std::size_t mostLines = 10;
    const auto problems = std::exchange(m_problems, {});
    hide();
    QStringList lines;
    for (const HRFFileProblem &problem : problems) {
        if (std::size_t(lines.size()) == mostLines) {
            lines.append(tr("and %1 more").arg(problems.size() - mostLines));
            break;
        }
        lines.append(u"%1: %2"_s.arg(problem.file.displayPath(), problem.error.description));
    }
    std::vector<HRFFileReference> files;
    std::ranges::transform(problems, std::back_inserter(files), &HRFFileProblem::file);
    const HRFAlert alert{.message = text(),
                         .informativeText = lines.join(u'\n'),
                         .buttons = {{.title = tr("OK"), .role = HRFAnswerRole::Continue},
                                     {.title = tr("Show Files")}},
                         .isCritical = true,
                         .owner = &m_list};
    if (HRFUserInteraction::current().runAlert(alert).button == 1)
        HRFUserInteraction::current().revealFiles(files);
}
