#include "store/HRFMetaFile.h"

#include "kit/HRFFileReferenceTable.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFAudioProperties.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaTags.h"
#include "store/HRFObjectStore.h"
#include "store/HRFSystemFile.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

#include <QFile>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class HRFMetaFileTest : public HRFApplicationTest
{
protected:
    HRFMetaFileTest()
        : context(HRFObjectModel::named(u"Lirra"_s),
                  *HRFObjectStore::open(path(u"list.sqlite"_s), HRFObjectModel::named(u"Lirra"_s),
                                        HRFObjectStore::Migrates::Yes,
                                        HRFObjectStore::Durability::Session))
        , file(*context.newObject<HRFMetaFile>())
    {
        context.processPendingChanges();
    }

    HRFMainContext context;
    HRFMetaFile &file;
};

TEST_F(HRFMetaFileTest, NamesFollowTheURL)
{
    file.setFileURL(u"file:///a/b/Song%201.mp3"_s);
    HRFSystemFile &info = file.fileInfo();
    EXPECT_EQ(info.fileName(), u"Song 1.mp3"_s);
    EXPECT_EQ(info.fileExtension(), u"mp3"_s);
    EXPECT_EQ(info.filePath(), u"/a/b"_s);
    info.setValueForKey(u"flac"_s, u"fileExtension"_s);
    EXPECT_EQ(info.fileName(), u"Song 1.flac"_s);
    context.processPendingChanges();
    EXPECT_EQ(context.undoManager().undoText(), u"Change Extension"_s);
    info.setValueForKey(u"AC/DC.mp3"_s, u"fileName"_s);
    EXPECT_EQ(info.fileName(), u"AC:DC.mp3"_s);
    EXPECT_EQ(info.displayFileName(), u"AC/DC.mp3"_s);
    context.processPendingChanges();
    EXPECT_EQ(context.undoManager().undoText(), u"Rename"_s);
}

TEST_F(HRFMetaFileTest, PairsAreNilWithoutNumberAndTotal)
{
    HRFMetaTags &tags = file.tags();
    EXPECT_TRUE(tags.trackNumberAndTotalAreNil());
    tags.setValueForKey(3, u"trackNumber"_s);
    EXPECT_FALSE(tags.trackNumberAndTotalAreNil());
    EXPECT_TRUE(tags.discNumberAndTotalAreNil());
    const HRFObjectChange change{&tags,
                                 HRFPropertyBit(tags.entity().propertyIndex(u"trackNumber"_s))};
    EXPECT_TRUE(change.affects(u"trackNumberAndTotalAreNil"_s));
    EXPECT_FALSE(change.affects(u"discNumberAndTotalAreNil"_s));
}

/// The record says what the engine says, by name, whatever it said before.
TEST_F(HRFMetaFileTest, EngineValuesReachTheRecord)
{
    const char *const fixtures[] = {"id3v23-ape-id3v1.mp3", "chapters.m4b", "comment-picture.flac",
                                    "id3-info.wav", "plain.dff"};
    for (const char *fixture : fixtures) {
        const QString copy = path(QString::fromLatin1(fixture));
        ASSERT_TRUE(QFile::copy(QStringLiteral(HRF_FIXTURES) + QString::fromLatin1(fixture), copy));
        const auto reference = HRFFileReference::fromPath(copy);
        const auto engine = HRFTagEngine::initWithURL(reference, true);
        ASSERT_TRUE(engine) << fixture;
        file.setFileURL(*HRFFileReferenceTable::referenceURLForFile(reference));
        file.importValuesFromEngine(engine->get());
        for (const HRFManagedObject *part : {static_cast<HRFManagedObject *>(&file.tags()),
                                             static_cast<HRFManagedObject *>(&file.properties())})
            for (const HRFAttributeDescription &attribute : part->entity().attributes) {
                const auto key = HRFTagKeyForName(attribute.name.toStdString());
                ASSERT_TRUE(key) << attribute.name.toStdString();
                const QVariant expected = (*engine)->valueForKey(*key);
                EXPECT_EQ(part->value(attribute.index),
                          HRFTagValue::isNothing(expected) ? QVariant() : expected)
                    << fixture << ' ' << attribute.name.toStdString();
            }
        EXPECT_EQ(file.artworkMD5().isEmpty(), !(*engine)->artwork().has_value()) << fixture;
        EXPECT_EQ(file.fileInfo().valueForKey(u"fileSize"_s), QFileInfo(copy).size());
        EXPECT_EQ(file.fileInfo().fileName(), QString::fromLatin1(fixture));
        EXPECT_EQ(file.url()->displayPath(), copy);
    }
}

TEST_F(HRFMetaFileTest, BulkUpdatesKnowArtworkAndTheNullMarker)
{
    file.tags().setValuesForKeysWithDictionary(
        {{u"artwork"_s, HRFSamplePNG}, {u"title"_s, u"T"_s}});
    EXPECT_EQ(file.artworkProperties().valueForKey(u"imageType"_s), u"PNG"_s);
    EXPECT_EQ(file.artworkProperties().valueForKey(u"imageDataSize"_s), HRFSamplePNG.size());
    EXPECT_EQ(file.artworkMD5().size(), 32);
    file.tags().setValuesForKeysWithDictionary(
        {{u"artwork"_s, QVariant::fromValue(nullptr)}, {u"title"_s, QVariant::fromValue(nullptr)}});
    for (const HRFAttributeDescription &attribute : file.artworkProperties().entity().attributes)
        EXPECT_FALSE(file.artworkProperties().value(attribute.index).isValid());
    EXPECT_EQ(file.artworkMD5(), QString());
    EXPECT_FALSE(file.tags().valueForKey(u"title"_s).isValid());
}

} // namespace
