#include "app/HRFArtworkPane.h"

#include "app/HRFAccessibility.h"
#include "app/HRFIcons.h"
#include "app/HRFListColumn.h"
#include "app/HRFPicture.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFImageType.h"
#include "kit/HRFMainThread.h"
#include "kit/HRFUserInteraction.h"
#include "operations/HRFTagWriteOperation.h"
#include "store/HRFMetaFile.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QSaveFile>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int pictureHeight = 176;
constexpr int margin = 8;

QString extensionOf(const QByteArray &picture)
{
    const auto type = bitmapImageType(picture);
    return type ? QString::fromLatin1(type->fileExtension) : u"image"_s;
}

void writeFile(const QString &path, const QByteArray &data)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit())
        return;
    HRFUserInteraction::presentErrorLater({.domain = QString::fromLatin1(HRFLirraErrorDomain),
                                           .description = file.errorString(),
                                           .path = path});
}

} // namespace

HRFArtworkPane::HRFArtworkPane(HRFPlaylist &list, QWidget *parent)
    : QWidget(parent), m_list(list), m_facts(new QLabel(this))
{
    HRFInstallAccessibility();
    setObjectName(u"artworkPane"_s);
    setAccessibleName(tr("Artwork"));
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    m_facts->setObjectName(u"artworkFacts"_s);
    m_facts->setAlignment(Qt::AlignCenter);
    m_facts->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addSpacing(pictureHeight + margin / 2);
    layout->addWidget(m_facts);
    connect(&m_loader, &HRFPictureLoader::pictureDidLoad, this, qOverload<>(&QWidget::update));
}

void HRFArtworkPane::refresh()
{
    const auto &records = m_list.fileController().selectedObjects();
    m_digest = records.empty() ? QString() : records.front()->artworkMD5();
    const bool areSame = std::ranges::all_of(
        records, [this](const HRFMetaFile *file) { return file->artworkMD5() == m_digest; });
    m_state = records.empty() ? State::NoRecords
        : !areSame            ? State::Several
        : m_digest.isEmpty()  ? State::Empty
                              : State::One;
    if (m_state == State::One && !m_loader.picture(m_digest))
        m_loader.load(m_digest, records.front()->fileURL());
    m_facts->setText(m_state == State::One ? factsOf(*records.front()) : QString());
    setAccessibleDescription(m_state == State::One ? m_facts->text() : placeholder());
    setEnabled(m_state != State::NoRecords);
    update();
}

void HRFArtworkPane::reload()
{
    if (const auto *present = picture(); present && present->data.isEmpty())
        m_loader.forget(m_digest);
    refresh();
}

QString HRFArtworkPane::factsOf(const HRFMetaFile &file) const
{
    QStringList facts;
    for (const QString &name : {u"imageType"_s, u"imageSize"_s, u"imageDataSize"_s}) {
        const int column = HRFListColumns::indexOf(name);
        facts.append(HRFListColumns::all()[std::size_t(column)].text(file));
    }
    facts.removeAll(QString());
    return facts.join(u"  ·  "_s);
}

QString HRFArtworkPane::placeholder() const
{
    const HRFPictureLoader::Picture *present = picture();
    switch (m_state) {
    case State::Empty:
        return tr("Drop a picture here");
    case State::Several:
        return tr("Several pictures");
    case State::One:
        return present && present->image.isNull() ? tr("Cannot be shown") : QString();
    default:
        return {};
    }
}

const HRFPictureLoader::Picture *HRFArtworkPane::picture() const
{
    return m_state == State::One ? m_loader.picture(m_digest) : nullptr;
}

QRect HRFArtworkPane::pictureArea() const
{
    return {margin, margin, width() - 2 * margin, pictureHeight};
}

void HRFArtworkPane::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int radius = 3;
    const HRFPictureLoader::Picture *present = picture();
    if (m_state == State::One && !present)
        return; // it is about to come
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect frame = present && !present->image.isNull() ? paintPicture(painter, present->image)
                                                            : paintPlaceholder(painter);
    if (!hasFocus() && !m_isDropTarget)
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(frame, radius, radius);
}

/// As large as there is room, but no larger than it is.
QRect HRFArtworkPane::paintPicture(QPainter &painter, const QImage &image) const
{
    const QSize room = pictureArea().size();
    const QSize whole = (QSizeF(image.size()) / devicePixelRatioF()).toSize();
    const bool isTooLarge = whole.width() > room.width() || whole.height() > room.height();
    const QSize size = isTooLarge ? whole.scaled(room, Qt::KeepAspectRatio) : whole;
    const QRect frame =
        QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, pictureArea());
    painter.drawImage(frame, image);
    return frame;
}

QRect HRFArtworkPane::paintPlaceholder(QPainter &painter) const
{
    constexpr int iconSize = 40;
    constexpr int radius = 6;
    constexpr double opacity = 0.5;
    const int side = std::min(pictureArea().width(), pictureArea().height());
    const QRect frame =
        QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {side, side}, pictureArea());
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DashLine));
    painter.drawRoundedRect(frame, radius, radius);
    painter.drawText(frame.adjusted(margin, side / 2, -margin, -margin),
                     Qt::AlignHCenter | Qt::TextWordWrap, placeholder());
    painter.setOpacity(opacity);
    static const QIcon icon = HRFIcons::named(u"artwork"_s);
    const QPoint corner = frame.center() - QPoint(iconSize / 2, iconSize + margin);
    icon.paint(&painter, QRect(corner, QSize(iconSize, iconSize)));
    painter.setOpacity(1);
    return frame;
}

void HRFArtworkPane::setArtwork(const QByteArray &image)
{
    setArtwork(image, m_list.selectedFiles());
}

void HRFArtworkPane::setArtwork(const QByteArray &image, const std::vector<HRFMetaFile *> &files)
{
    const auto progress = std::make_shared<HRFProgress>();
    progress->setLocalizedDescription(tr("Set Artwork"));
    const QHash<QString, QVariant> values{
        {u"artwork"_s, image.isEmpty() ? QVariant::fromValue(nullptr) : QVariant(image)}};
    m_list.enqueueOperationsForFiles(
        files, progress, HRFProgressDisplayMode::AfterDelay,
        [&](const HRFMetaFile &file, std::size_t) -> std::shared_ptr<HRFTagWriteOperation> {
            if (image.isEmpty() && file.artworkMD5().isEmpty())
                return nullptr; // there is nothing to remove
            auto operation = std::make_shared<HRFTagWriteOperation>();
            operation->setChangedValues(values);
            return operation;
        });
}

void HRFArtworkPane::take(const QMimeData &source)
{
    if (const QString path = HRFPicture::fileIn(source); !path.isEmpty())
        takeFile(path);
    else if (const QByteArray image = HRFPicture::imageIn(source); !image.isEmpty())
        setArtwork(image);
}

/// The file is read on another thread: it may be far away. The picture is meant for the files that
/// are selected now.
void HRFArtworkPane::takeFile(const QString &path)
{
    std::vector<HRFObjectID> records;
    for (const HRFMetaFile *file : m_list.selectedFiles())
        records.push_back(file->objectID());
    m_reading.run([reference = m_weakSelf.reference(), path, records] {
        const auto read = HRFPicture::fromFile(path);
        if (!read)
            return HRFUserInteraction::presentErrorLater(read.error());
        HRFMainThread::run(
            [reference, image = *read, records] {
                if (HRFArtworkPane *self = reference.get())
                    self->setArtwork(image, self->filesOf(records));
            },
            HRFMainThread::Wait::No);
    });
}

std::vector<HRFMetaFile *> HRFArtworkPane::filesOf(const std::vector<HRFObjectID> &records) const
{
    std::vector<HRFMetaFile *> files;
    for (const HRFObjectID record : records)
        if (auto *file = m_list.managedObjectContext().object<HRFMetaFile>(record))
            files.push_back(file);
    return files;
}

void HRFArtworkPane::choose()
{
    auto *panel = new QFileDialog(this, tr("Choose Picture"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilters(
        {tr("Pictures (%1)").arg(u"*.jpg *.jpeg *.png *.gif *.bmp *.tif *.tiff *.webp"_s),
         tr("All Files (*)")});
    connect(panel, &QFileDialog::fileSelected, this, &HRFArtworkPane::takeFile);
    panel->open();
}

void HRFArtworkPane::paste()
{
    take(*QGuiApplication::clipboard()->mimeData());
}

/// As an image for all programs, and as the file has it for those that understand that.
void HRFArtworkPane::copy() const
{
    const HRFPictureLoader::Picture *present = picture();
    if (!present || present->data.isEmpty())
        return;
    auto copied = std::make_unique<QMimeData>();
    copied->setImageData(QImage::fromData(present->data));
    if (const auto type = bitmapImageType(present->data))
        copied->setData(QString::fromLatin1(type->mimeType), present->data);
    QGuiApplication::clipboard()->setMimeData(copied.release());
}

void HRFArtworkPane::save()
{
    if (!picture() || picture()->data.isEmpty())
        return;
    auto *panel = new QFileDialog(this, tr("Save Picture"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setDefaultSuffix(extensionOf(picture()->data));
    panel->selectFile(tr("Artwork") + u'.' + panel->defaultSuffix());
    connect(panel, &QFileDialog::fileSelected, this,
            [image = picture()->data](const QString &path) { writeFile(path, image); });
    panel->open();
}

void HRFArtworkPane::contextMenuEvent(QContextMenuEvent *event)
{
    const bool hasPicture = picture() && !picture()->data.isEmpty();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Choose Picture…"), this, &HRFArtworkPane::choose);
    menu->addSeparator();
    menu->addAction(tr("Copy"), this, &HRFArtworkPane::copy)->setEnabled(hasPicture);
    menu->addAction(tr("Paste"), this, &HRFArtworkPane::paste)
        ->setEnabled(HRFPicture::isIn(*QGuiApplication::clipboard()->mimeData()));
    menu->addAction(tr("Save As…"), this, &HRFArtworkPane::save)->setEnabled(hasPicture);
    menu->addSeparator();
    menu->addAction(tr("Remove"), this, &HRFArtworkPane::removeArtwork)
        ->setEnabled(m_state == State::One || m_state == State::Several);
    menu->popup(event->globalPos());
}

/// Its own keys come before those of the list's commands.
bool HRFArtworkPane::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = static_cast<QKeyEvent &>(*event);
        if (key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Paste))
            event->accept();
    }
    return QWidget::event(event);
}

void HRFArtworkPane::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::Paste))
        paste();
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        removeArtwork();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space)
        choose();
    else
        QWidget::keyPressEvent(event);
}

void HRFArtworkPane::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    choose();
}

/// Everything else is for the list.
void HRFArtworkPane::dragEnterEvent(QDragEnterEvent *event)
{
    if (!HRFPicture::isIn(*event->mimeData()))
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropTarget(true);
}

void HRFArtworkPane::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    setDropTarget(false);
}

void HRFArtworkPane::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropTarget(false);
    take(*event->mimeData());
}

void HRFArtworkPane::setDropTarget(bool isDropTarget)
{
    m_isDropTarget = isDropTarget;
    update();
}
