#include "app/HRFSidebar.h"
#include "app/HRFTestWithDialogs.h"

#include <QLabel>

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

class HRFErrorAlertsTest : public HRFTestWithDialogs
{
protected:
    /// The first three of four files cannot be written.
    void makeGuardedFiles()
    {
        obeyModes();
        for (const QString &name : names) {
            makeFile(name, {{HRFTagKey::album, u"Old"_s}});
            ASSERT_EQ(
                ::chmod(music(name).nativePath().constData(), name == names.back() ? 0644 : 0444),
                0);
        }
        dropFolder(int(names.size()));
        window->commands().action(u"selectAll"_s)->trigger();
    }
    void editAlbum(const QString &text) const
    {
        auto *field = window->sidebar().findChild<QLineEdit *>(u"field.album"_s);
        waitUntil([&] { return field->isEnabled(); });
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
        waitForWork();
    }
    std::vector<QString> albums() const
    {
        std::vector<QString> texts;
        for (const QString &name : names)
            texts.push_back(onDisk(music(name), HRFTagKey::album));
        return texts;
    }

    const QStringList names{u"a.mp3"_s, u"b.mp3"_s, u"c.mp3"_s, u"d.mp3"_s};

private:
    /// The thread that writes files has no right beyond what their modes say, even as root.
    static void obeyModes()
    {
        HRFMetaFileManager::fileOperationQueue().addBarrierBlock([] {
            __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
            __user_cap_data_struct rights[_LINUX_CAPABILITY_U32S_3] = {};
            ASSERT_EQ(::syscall(SYS_capget, &header, rights), 0);
            rights[0].effective &= ~(1U << CAP_DAC_OVERRIDE);
            rights[0].permitted &= ~(1U << CAP_DAC_OVERRIDE);
            ASSERT_EQ(::syscall(SYS_capset, &header, rights), 0);
        });
    }
};

TEST_F(HRFErrorAlertsTest, asksOnceOrForEachFile)
{
    const struct
    {
        QString button;
        bool isForAll;
        std::size_t alerts;
        QString guarded; ///< what the files say afterwards that could not be written
    } cases[] = {{u"Cancel"_s, false, 3, u"Old"_s},
                 {u"Cancel"_s, true, 1, u"Old"_s},
                 {u"Fix Permissions"_s, true, 1, u"fixed"_s}};
    makeGuardedFiles();
    for (const auto &test : cases) {
        messages.clear();
        acts.assign(test.alerts, [&](QDialog &alert) {
            auto *box = alert.findChild<QCheckBox *>();
            ASSERT_TRUE(box);
            EXPECT_EQ(box->text(), u"Apply to All"_s);
            EXPECT_FALSE(box->isChecked());
            box->setChecked(test.isForAll);
            HRFTestDialogs::press(alert, test.button);
        });
        const QString text = test.guarded == u"Old"_s ? QString::number(test.alerts) : test.guarded;
        editAlbum(text);
        EXPECT_THAT(messages, SizeIs(test.alerts));
        EXPECT_EQ(messages[0], u"Lirra failed to save the file “a.mp3”"_s);
        EXPECT_THAT(albums(), ElementsAre(test.guarded, test.guarded, test.guarded, text));
        EXPECT_THAT(texts(u"album"_s), Each(text)); // it is not taken back
    }
}

TEST_F(HRFErrorAlertsTest, standsOnTheProgressOfItsList)
{
    HRFListWindow &other = application->newList();
    makeGuardedFiles();
    acts = {[&](QDialog &alert) {
                other.showWindows(); // the user goes on elsewhere
                HRFTestDialogs::press(alert, u"Remove all metadata"_s);
            },
            [&](QDialog &alert) {
                const QDialog *progress = HRFTestDialogs::dialog(u"progressSheet"_s);
                ASSERT_TRUE(progress);
                EXPECT_EQ(progress->parentWidget(), window);
                EXPECT_EQ(alert.parentWidget(), progress);
                EXPECT_FALSE(other.hasAttachedSheet());
                alert.findChild<QCheckBox *>()->setChecked(true);
                HRFTestDialogs::press(alert, u"Cancel"_s);
                EXPECT_FALSE(alert.isVisible());
                alert.reject(); // in case of a fault
            }};
    window->commands().action(u"strip"_s)->trigger();
    EXPECT_TRUE(window->hasAttachedSheet()); // nothing can be asked for twice
    waitForWork();
    EXPECT_THAT(albums(), ElementsAre(u"Old"_s, u"Old"_s, u"Old"_s, QString()));
}

} // namespace
