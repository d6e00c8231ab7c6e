#pragma once

#include "kit/HRFFileReference.h"

#include <memory>
#include <vector>

class QMimeData;

/// Files as text/uri-list, which other programs take them by. Paths that are not valid UTF-8 keep
/// their bytes.
namespace HRFFileURIs {

/// "file:///Music/Song%201.mp3".
QByteArray uriOf(const HRFFileReference &file);
std::unique_ptr<QMimeData> mimeData(const std::vector<HRFFileReference> &files);
/// The local files among the URIs.
std::vector<HRFFileReference> filesOf(const QMimeData &data);

} // namespace HRFFileURIs
