#pragma once

#include "kit/HRFBackground.h"
#include "kit/HRFWeakSelf.h"

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSet>

#include <deque>
#include <utility>

/// Small pictures of files, read from the files by other threads and kept as long as there is room.
/// For the main thread.
class HRFThumbnails : public QObject
{
    Q_OBJECT
public:
    HRFThumbnails();

    /// The longer side of thumbnails, in pixels. Those that were read for a shorter one are read
    /// anew when they are asked for, and serve until then.
    void setSize(int size) { m_size = size; }

    /// The picture with a digest; null when there is none, or not yet: then it is read from the
    /// file with the URL. When it cannot be read there, another file with the same picture may do.
    QPixmap thumbnail(const QString &digest, const QString &fileURL);
    /// Lets files be tried again whose pictures could not be read.
    void forgetFailures();

Q_SIGNALS:
    /// Some picture looks different now, or is worth to be asked for again.
    void thumbnailsDidChange();

private:
    struct Thumbnail
    {
        QPixmap image;
        int size; ///< that it was read for; the picture itself may be smaller
    };
    struct Request
    {
        QString digest;
        QString fileURL;
    };

    void request(const Request &request);
    void startLoading();
    void take(const Request &request, int size, const QImage &image);

    int m_size = 64;
    QCache<QString, Thumbnail> m_cache; ///< by digest
    QSet<std::pair<QString, QString>> m_failures; ///< digests, and files where they were in vain
    /// The latest come first, for they are what the user looks at.
    std::deque<Request> m_waiting;
    QSet<QString> m_requested; ///< waiting or being read
    int m_running = 0;
    HRFBackgroundGroup m_reading;
    const HRFWeakSelf<HRFThumbnails> m_weakSelf{this};
};
