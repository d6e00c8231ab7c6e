#pragma once

#include <QByteArray>

class HRFTagEngine;

/// How `show` prints one file.
class HRFFileReport
{
public:
    explicit HRFFileReport(bool printsFrames) : m_printsFrames(printsFrames) { }

    /// One JSON object on a line of its own.
    QByteArray json(const HRFTagEngine &engine);
    /// Lines for people, and an empty one.
    QByteArray text(const HRFTagEngine &engine);

private:
    bool m_printsFrames;
};
