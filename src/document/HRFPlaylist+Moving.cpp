#include "document/HRFDocumentController.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"
#include "operations/HRFProgressWindowController.h"

using namespace Qt::StringLiterals;

void HRFPlaylist::move()
{
    if (m_window && !selectedFiles().empty())
        m_window->runMovePanel();
}

void HRFPlaylist::moveSelectedFilesToFolder(const HRFFileReference &folder)
{
    HRFRequire(!folder.isNull(), "folder");
    m_documents.noteNewRecentMoveDestinationURL(folder.displayPath());
    const auto progress = std::make_shared<HRFProgress>(qlonglong(selectedFiles().size()));
    progress->setLocalizedDescription(tr("Move Files"));
    progress->setOwner(this);
    const auto sheet = HRFMainThread::makeShared<HRFProgressWindowController>(progress);
    sheet->showAsSheet();
    // No folders below the chosen one.
    const HRFPattern pattern({u"."_s}, HRFConversionContext());
    m_fileOperationCC.moveFilesToSubPathDefinedByPattern(pattern, folder, progress,
                                                         [sheet] { sheet->dismiss(); });
}

void HRFPlaylist::editPattern()
{
    if (m_window)
        m_window->showConvertWindow();
}
