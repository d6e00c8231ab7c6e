#include "app/HRFThumbnails.h"

#include "app/HRFPicture.h"
#include "kit/HRFAssert.h"
#include "kit/HRFMainThread.h"

namespace {

constexpr int threadCount = 2;
constexpr qsizetype cacheBytes = 48LL << 20;
/// More are not looked at by anybody: the user has scrolled past.
constexpr std::size_t mostWaiting = 200;
/// Many more than are in view at a time: each file in view is tried once.
constexpr qsizetype mostFailures = 2000;

} // namespace

HRFThumbnails::HRFThumbnails() : m_cache(cacheBytes) { }

QPixmap HRFThumbnails::thumbnail(const QString &digest, const QString &fileURL)
{
    HRFRequire(HRFMainThread::isCurrent(), "HRFMainThread::isCurrent()");
    if (digest.isEmpty())
        return {};
    const Thumbnail *present = m_cache.object(digest);
    const bool isLargeEnough = present && present->size >= m_size;
    if (!isLargeEnough && !m_requested.contains(digest) && !m_failures.contains({digest, fileURL}))
        request({digest, fileURL});
    return present ? present->image : QPixmap();
}

void HRFThumbnails::forgetFailures()
{
    if (m_failures.isEmpty())
        return;
    m_failures.clear();
    Q_EMIT thumbnailsDidChange();
}

void HRFThumbnails::request(const Request &request)
{
    m_requested.insert(request.digest);
    m_waiting.push_front(request);
    if (m_waiting.size() > mostWaiting) {
        m_requested.remove(m_waiting.back().digest);
        m_waiting.pop_back();
    }
    startLoading();
}

void HRFThumbnails::startLoading()
{
    while (m_running < threadCount && !m_waiting.empty()) {
        const Request next = std::move(m_waiting.front());
        m_waiting.pop_front();
        ++m_running;
        m_reading.run([reference = m_weakSelf.reference(), next, size = m_size] {
            QImage image;
            HRFMainThread::runLoggingFailures([&] {
                image = HRFPicture::scaled(HRFPicture::inFile(next.fileURL), {size, size});
            });
            HRFMainThread::run(
                [reference, next, size, image = std::move(image)] {
                    if (HRFThumbnails *self = reference.get())
                        self->take(next, size, image);
                },
                HRFMainThread::Wait::No);
        });
    }
}

void HRFThumbnails::take(const Request &request, int size, const QImage &image)
{
    --m_running;
    m_requested.remove(request.digest);
    if (image.isNull()) {
        if (m_failures.size() >= mostFailures)
            m_failures.clear();
        m_failures.insert({request.digest, request.fileURL});
    } else {
        const QPixmap pixmap = QPixmap::fromImage(image);
        const qsizetype bytes = qsizetype(pixmap.width()) * pixmap.height() * pixmap.depth() / 8;
        m_cache.insert(request.digest, new Thumbnail{pixmap, size}, std::max<qsizetype>(bytes, 1));
    }
    startLoading();
    Q_EMIT thumbnailsDidChange();
}
