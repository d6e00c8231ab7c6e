#pragma once

#include <QByteArray>

#include <memory>

class HRFTagStream;

/// A stream over bytes in memory, for reading only.
std::shared_ptr<HRFTagStream> HRFStreamOfBytes(QByteArray bytes);
