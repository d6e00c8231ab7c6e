#include "cli/HRFFileList.h"

#include "cli/HRFInterruption.h"
#include "document/HRFFileWalker.h"

using namespace Qt::StringLiterals;

HRFFileList HRFCollectFiles(const std::vector<std::string> &paths)
{
    std::vector<HRFFileReference> given;
    for (const std::string &path : paths)
        given.push_back(HRFFileReference::fromNativePath(QByteArray::fromStdString(path)));
    const HRFFoundFiles found = HRFFileWalker::find(given, &HRFInterruption::isRequested);
    HRFFileList list;
    for (const HRFFoundFile &file : found.files)
        list.files.push_back(file.file);
    for (const auto &[file, error] : found.problems)
        list.problems.push_back(u"%1: %2"_s.arg(file.displayPath(), error.fullText()));
    return list;
}
