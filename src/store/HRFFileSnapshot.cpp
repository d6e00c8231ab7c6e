#include "store/HRFFileSnapshot.h"

#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFMetaTags.h"
#include "tags/HRFTagEngine.h"

#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Field
{
    HRFTagKey key;
    int property;
};

/// The attributes of an entity that engines know by name.
std::vector<Field> fieldsOf(const QString &entityName)
{
    const HRFEntityDescription *entity = HRFObjectModel::named(u"Lirra"_s)->entityNamed(entityName);
    std::vector<Field> fields;
    for (const HRFAttributeDescription &attribute : entity->attributes)
        if (const auto key = HRFTagKeyForName(attribute.name.toStdString()))
            fields.push_back({*key, attribute.index});
    return fields;
}

HRFValues valuesOf(const HRFTagEngine &engine, const std::vector<Field> &fields)
{
    HRFValues values;
    for (const Field &field : fields)
        if (const QVariant value = engine.valueForKey(field.key); !HRFTagValue::isNothing(value))
            values.setValue(field.property, value);
    values.squeeze();
    return values;
}

QDateTime dateOf(const statx_timestamp &time)
{
    constexpr qint64 msecsPerSecond = 1000;
    constexpr qint64 nsecsPerMsec = 1000000;
    return QDateTime::fromMSecsSinceEpoch(
        time.tv_sec * msecsPerSecond + time.tv_nsec / nsecsPerMsec, Qt::UTC);
}

QString folderOf(const HRFFileReference &file)
{
    QString path = file.displayPath();
    if (!path.startsWith(u'/'))
        path = QFileInfo(path).absoluteFilePath();
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 1));
}

} // namespace

std::optional<HRFFileFacts> HRFFileFacts::of(const HRFFileReference &file)
{
    struct statx status = {};
    constexpr unsigned wanted = STATX_SIZE | STATX_MTIME | STATX_BTIME;
    if (::statx(AT_FDCWD, file.nativePath().constData(), AT_STATX_SYNC_AS_STAT, wanted, &status)
        != 0)
        return {};
    return HRFFileFacts{.filePath = folderOf(file),
                        .fileSize = status.stx_size,
                        .dateCreated = (status.stx_mask & STATX_BTIME) ? dateOf(status.stx_btime)
                                                                       : QDateTime(),
                        .dateModified = dateOf(status.stx_mtime)};
}

HRFFileSnapshot HRFFileSnapshot::of(const HRFTagEngine &engine)
{
    static const std::vector<Field> tagFields = fieldsOf(HRFMetaTags::entityName());
    static const std::vector<Field> propertyFields = fieldsOf(HRFAudioProperties::entityName());
    HRFFileSnapshot snapshot{.tagSize = engine.valueForKey(HRFTagKey::tagSize),
                             .tags = valuesOf(engine, tagFields),
                             .properties = valuesOf(engine, propertyFields),
                             .facts = HRFFileFacts::of(engine.fileURL())};
    if (const auto picture = engine.artwork(); picture && !picture->isEmpty())
        snapshot.artwork = HRFArtworkFactsForPicture(*picture);
    return snapshot;
}
