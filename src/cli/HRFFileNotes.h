#pragma once

#include <QHash>
#include <QString>

#include <mutex>
#include <utility>

/// What is noted of files while they are read, on other threads, until their records arrive. Files
/// go by their reference URL.
template <class Note> class HRFFileNotes
{
public:
    void put(const QString &fileURL, Note &&note)
    {
        const std::lock_guard lock(m_mutex);
        m_notes.insert(fileURL, std::move(note));
    }
    Note take(const QString &fileURL)
    {
        const std::lock_guard lock(m_mutex);
        return m_notes.take(fileURL);
    }

private:
    std::mutex m_mutex; ///< guards m_notes
    QHash<QString, Note> m_notes;
};
