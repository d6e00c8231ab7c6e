#include "sides/HRFListSide.h"

#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFUserInteraction.h"
#include "sides/HRFOrThrow.h"
#include "store/HRFDataFolder.h"
#include "store/HRFMetaFile.h"
#include "store/HRFMetaTags.h"
#include "store/HRFSystemFile.h"

#include <QEventLoop>
#include <QTemporaryDir>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// Nothing may need an answer here.
class Silence : public HRFUserInteraction
{
public:
    Silence() { setCurrent(this); }
    ~Silence() override { setCurrent(nullptr); }

    HRFAlertAnswer runAlert(const HRFAlert &alert) override { fail(alert.message); }
    bool presentError(const HRFError &error, HRFInteractionOwner /*owner*/) override
    {
        fail(error.fullText());
    }
    void revealFiles(const std::vector<HRFFileReference> &) override { }
    void notify(const QString &, const QString &, bool) override { }
    std::unique_ptr<HRFProgressDisplay> showProgress(const std::shared_ptr<HRFProgress> &,
                                                     const HRFProgressAppearance &) override
    {
        return std::make_unique<HRFProgressDisplay>();
    }

private:
    [[noreturn]] static void fail(const QString &text)
    {
        throw std::runtime_error(text.toStdString());
    }
};

} // namespace

struct HRFListSide::Parts
{
    Silence silence;
    QTemporaryDir files;
    std::unique_ptr<HRFDataFolder> folder = HRFOrThrow(HRFDataFolder::take(files.path()));
    HRFDocumentController documents;
    HRFPlaylist &list = documents.newDocument();
};

HRFListSide::HRFListSide() : m_parts(std::make_unique<Parts>()) { }

HRFListSide::~HRFListSide() = default;

void HRFListSide::import(const std::filesystem::path &folder)
{
    QEventLoop loop;
    QObject::connect(&m_parts->list.fileManager(), &HRFMetaFileManager::importDidEnd, &loop,
                     &QEventLoop::quit);
    m_parts->list.importFileAtPath(
        HRFFileReference::fromNativePath(QByteArray::fromStdString(folder.native())));
    loop.exec();
}

void HRFListSide::writeTitle(std::size_t first, std::size_t count, const std::string &title)
{
    QEventLoop loop;
    QObject::connect(&m_parts->list, &HRFPlaylist::fileOperationsDidEnd, &loop, &QEventLoop::quit);
    const QVariant value = QString::fromStdString(title);
    const auto &files = m_parts->list.fileController().arrangedObjects();
    for (std::size_t i = first; i < first + count; ++i)
        files[i]->tags().setValueForKey(value, u"title"_s);
    loop.exec();
}

void HRFListSide::rename(const std::string &prefix)
{
    const auto &files = m_parts->list.fileController().arrangedObjects();
    for (std::size_t i = 0; i < files.size(); ++i) {
        HRFSystemFile &info = files[i]->fileInfo();
        info.setFileName(QString::fromStdString(prefix) + QString::number(i) + u'.'
                         + info.fileExtension());
    }
    m_parts->list.managedObjectContext().processPendingChanges();
}

std::size_t HRFListSide::fileCount() const
{
    return m_parts->list.fileController().arrangedObjects().size();
}
