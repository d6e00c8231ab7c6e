#include "app/HRFPictureLoader.h"

#include "app/HRFPicture.h"
#include "kit/HRFMainThread.h"

#include <utility>

namespace {

constexpr qsizetype cacheBytes = 32LL << 20;

} // namespace

HRFPictureLoader::HRFPictureLoader() : m_cache(cacheBytes) { }

void HRFPictureLoader::load(const QString &digest, const QString &fileURL)
{
    if (m_isLoading)
        m_next = Request{digest, fileURL};
    else
        start({digest, fileURL});
}

void HRFPictureLoader::start(const Request &request)
{
    m_isLoading = true;
    m_work.run([reference = m_weakSelf.reference(), request] {
        Picture picture;
        HRFMainThread::runLoggingFailures([&] {
            picture.data = HRFPicture::inFile(request.fileURL);
            picture.image = HRFPicture::scaled(picture.data, {size, size});
        });
        HRFMainThread::run(
            [reference, digest = request.digest, picture] {
                if (HRFPictureLoader *self = reference.get())
                    self->take(digest, picture);
            },
            HRFMainThread::Wait::No);
    });
}

void HRFPictureLoader::take(const QString &digest, const Picture &picture)
{
    // One that is too large for the cache shall be seen nevertheless.
    const qsizetype cost = 1 + picture.data.size() + picture.image.sizeInBytes();
    m_cache.insert(digest, new Picture(picture), std::min(cost, cacheBytes));
    m_isLoading = false;
    Q_EMIT pictureDidLoad(digest);
    if (const auto next = std::exchange(m_next, {}); next && !m_isLoading)
        load(next->digest, next->fileURL);
}
