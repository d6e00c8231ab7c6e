#pragma once

#include "kit/HRFBackground.h"
#include "kit/HRFWeakSelf.h"

#include <QCache>
#include <QImage>
#include <QObject>

#include <optional>

/// Reads the pictures of files on another thread, one at a time: of those asked for meanwhile, only
/// the last one. Remembers the latest. For the main thread.
class HRFPictureLoader : public QObject
{
    Q_OBJECT
public:
    /// The longest side of the images, in pixels.
    static constexpr int size = 640;

    struct Picture
    {
        QByteArray data{}; ///< as the file has it; empty when it could not be read
        QImage image{}; ///< scaled down; null when it could not be decoded
    };

    HRFPictureLoader();

    /// The picture with a digest; nullptr when it was not loaded.
    const Picture *picture(const QString &digest) const { return m_cache.object(digest); }
    /// Reads the picture with a digest from the file with the URL, and tells when it is there.
    void load(const QString &digest, const QString &fileURL);
    void forget(const QString &digest) { m_cache.remove(digest); }

Q_SIGNALS:
    void pictureDidLoad(const QString &digest);

private:
    struct Request
    {
        QString digest;
        QString fileURL;
    };

    void start(const Request &request);
    void take(const QString &digest, const Picture &picture);

    QCache<QString, Picture> m_cache;
    std::optional<Request> m_next;
    bool m_isLoading = false;
    HRFBackgroundGroup m_work;
    const HRFWeakSelf<HRFPictureLoader> m_weakSelf{this};
};
