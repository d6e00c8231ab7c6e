#pragma once

#include "support/HRFTestFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Copies of an audio file in a folder of the test.
class HRFAudioFilesTest : public testing::Test
{
protected:
    HRFFileReference file(const QString &name) const
    {
        return HRFFileReference::fromPath(m_folder.filePath(name));
    }
    HRFFileReference makeFile(const QString &name) const
    {
        QFile original(QStringLiteral(HRF_FIXTURES "id3v23.mp3"));
        EXPECT_TRUE(original.copy(m_folder.filePath(name))) << name.toStdString();
        return file(name);
    }
    /// What a fresh engine reads; nothing when the file does not open.
    static QVariant value(const HRFFileReference &file, HRFTagKey key)
    {
        const auto engine = HRFTagEngine::initWithURL(file);
        return engine ? (*engine)->valueForKey(key) : QVariant();
    }
    static QString text(const HRFFileReference &file, HRFTagKey key)
    {
        return value(file, key).toString();
    }

private:
    QTemporaryDir m_folder;
};
