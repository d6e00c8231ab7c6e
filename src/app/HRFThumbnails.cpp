#include "app/HRFThumbnails.h"

#include "app/HRFPicture.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

namespace {

constexpr int threadCount = 2;
constexpr qsizetype cacheBytes = 48LL << 20;
/// More are not looked at by anybody: the user has scrolled past.
constexpr std::size_t mostWaiting = 200;

} // namespace

HRFThumbnails::HRFThumbnails() : m_cache(cacheBytes) { }

QPixmap HRFThumbnails::thumbnail(const QString &digest, const QString &fileURL)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (digest.isEmpty())
        return {};
    if (const QPixmap *present = m_cache.object(digest))
        return *present;
    if (!m_requested.contains(digest)) {
        m_requested.insert(digest);
        m_waiting.push_front({digest, fileURL});
        if (m_waiting.size() > mostWaiting) {
            m_requested.remove(m_waiting.back().digest);
            m_waiting.pop_back();
        }
        startLoading();
    }
    return {};
}

void HRFThumbnails::startLoading()
{
    while (m_running < threadCount && !m_waiting.empty()) {
        const Request next = std::move(m_waiting.front());
        m_waiting.pop_front();
        ++m_running;
        m_reading.run([reference = m_weakSelf.reference(), next] {
            QImage image;
            HRFMainThread::runLoggingFailures([&] {
                image = HRFPicture::scaled(HRFPicture::inFile(next.fileURL), {size, size});
            });
            HRFMainThread::run(
                [reference, digest = next.digest, image = std::move(image)] {
                    if (HRFThumbnails *self = reference.get())
                        self->take(digest, image);
                },
                HRFMainThread::Wait::No);
        });
    }
}

void HRFThumbnails::take(const QString &digest, const QImage &image)
{
    --m_running;
    m_requested.remove(digest);
    constexpr qsizetype costOfNothing = 1;
    m_cache.insert(digest, new QPixmap(QPixmap::fromImage(image)),
                   std::max(costOfNothing, image.sizeInBytes()));
    startLoading();
    Q_EMIT thumbnailDidLoad(digest);
}
