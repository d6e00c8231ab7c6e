#include "app/HRFProgressDialog.h"

#include "app/HRFSheets.h"
#include "operations/HRFProgress.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

HRFProgressDialog::HRFProgressDialog(std::shared_ptr<HRFProgress> progress,
                                     HRFProgressAppearance appearance, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_progress(std::move(progress))
    , m_appearance(std::move(appearance))
    , m_title(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_details(new QLabel(this))
    , m_cancel(new QPushButton(m_appearance.cancelTitle, this))
{
    constexpr std::chrono::milliseconds betweenLooks(100);
    constexpr int width = 400;
    constexpr int margin = 18;
    setObjectName(u"progressSheet"_s);
    setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    setWindowTitle(QApplication::applicationDisplayName());
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_title);
    layout->addWidget(m_bar);
    auto *lastLine = new QHBoxLayout;
    lastLine->addWidget(m_details, 1);
    lastLine->addWidget(m_cancel);
    layout->addLayout(lastLine);
    setFixedWidth(width);
    connect(m_cancel, &QPushButton::clicked, this, &HRFProgressDialog::reject);
    connect(&m_timer, &QTimer::timeout, this, &HRFProgressDialog::refresh);
    m_timer.start(betweenLooks);
    refresh();
    appear();
}

void HRFProgressDialog::appear()
{
    const QWidget *window = parentWidget();
    if (m_isOver || (window && !window->isVisible()))
        return;
    if (const QDialog *question = window ? HRFSheets::questionOn(*window) : nullptr)
        callWhenGone(*question, &HRFProgressDialog::appear);
    else
        show();
}

void HRFProgressDialog::end()
{
    m_isOver = true;
    m_timer.stop();
    if (const QDialog *question = HRFSheets::questionOn(*this))
        return callWhenGone(*question, &HRFProgressDialog::end);
    hide();
    deleteLater(); // it may be what asked for the end
}

void HRFProgressDialog::callWhenGone(const QDialog &question, void (HRFProgressDialog::*member)())
{
    connect(&question, &QDialog::finished, this, member, Qt::SingleShotConnection);
    connect(&question, &QObject::destroyed, this, member, Qt::SingleShotConnection);
}

void HRFProgressDialog::refresh()
{
    const QString title = m_appearance.title ? m_appearance.title() : QString();
    m_title->setText(title.isEmpty() ? m_progress->localizedDescription() : title);
    const qlonglong total = m_progress->totalUnitCount();
    constexpr int steps = 1000;
    m_bar->setRange(0, total > 0 ? steps : 0);
    m_bar->setValue(int(m_progress->fractionCompleted() * steps));
    const QString further = m_progress->localizedAdditionalDescription();
    const QLocale locale;
    const QString count =
        tr("%1 of %2")
            .arg(locale.toString(m_progress->completedUnitCount()), locale.toString(total));
    m_details->setText(m_progress->isCancelled() ? tr("Cancelling…")
                           : !further.isEmpty()  ? further
                           : total > 0           ? count
                                                 : QString());
    m_cancel->setVisible(m_progress->isCancellable());
    m_cancel->setEnabled(!m_progress->isCancelled());
}

void HRFProgressDialog::reject()
{
    if (m_progress->isCancellable() && !m_progress->isCancelled() && m_appearance.cancel)
        m_appearance.cancel();
}
