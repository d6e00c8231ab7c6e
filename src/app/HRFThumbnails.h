#pragma once

#include "kit/HRFBackground.h"
#include "kit/HRFWeakSelf.h"

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSet>

#include <deque>

/// Small pictures of files, read from the files by other threads and kept as long as there is room.
/// For the main thread.
class HRFThumbnails : public QObject
{
    Q_OBJECT
public:
    /// The longer side of a thumbnail, in pixels.
    static constexpr int size = 128;

    HRFThumbnails();

    /// The picture with a digest; null when there is none, or not yet: then it is read from the
    /// file with the URL.
    QPixmap thumbnail(const QString &digest, const QString &fileURL);

Q_SIGNALS:
    void thumbnailDidLoad(const QString &digest);

private:
    struct Request
    {
        QString digest;
        QString fileURL;
    };

    void startLoading();
    void take(const QString &digest, const QImage &image);

    QCache<QString, QPixmap> m_cache; ///< by digest; null for pictures that cannot be read
    /// The latest come first, for they are what the user looks at.
    std::deque<Request> m_waiting;
    QSet<QString> m_requested; ///< waiting or being read
    int m_running = 0;
    HRFBackgroundGroup m_reading;
    const HRFWeakSelf<HRFThumbnails> m_weakSelf{this};
};
