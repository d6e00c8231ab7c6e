#pragma once

#include "app/HRFApplicationDelegate.h"
#include "app/HRFDesktopApplication.h"
#include "app/HRFFileURIs.h"
#include "app/HRFListColumn.h"
#include "app/HRFListCommands.h"
#include "app/HRFListHeader.h"
#include "app/HRFListModel.h"
#include "app/HRFListView.h"
#include "app/HRFListWindow.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFDataFolder.h"
#include "support/HRFScriptedInteraction.h"
#include "support/HRFTestApplication.h"
#include "support/HRFTestFile.h"

#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>

/// The program's window, as the user has it before them.
class HRFTestWithWindow : public HRFTestWithApplication<HRFDesktopApplication>
{
protected:
    HRFTestWithWindow() : dataFolder(*HRFDataFolder::take(path(QStringLiteral("data"))))
    {
        HRFUserDefaults::standard().setFilePath(path(QStringLiteral("settings.ini")));
        QDir().mkpath(path(QStringLiteral("music")));
        open();
    }
    void TearDown() override
    {
        EXPECT_TRUE(user.presentedErrors.empty()); // a test that expects some takes them away
        close();
        HRFTestWithApplication::TearDown();
        HRFUserDefaults::standard().setFilePath({});
    }

    void open()
    {
        application = std::make_unique<HRFApplicationDelegate>();
        window = &application->newList();
    }
    void close()
    {
        application.reset();
        HRFBackground::waitUntilIdle();
    }

    HRFFileReference music(const QString &name) const
    {
        return HRFFileReference::fromPath(path(QStringLiteral("music/") + name));
    }
    void makeFile(const QString &name, const HRFTagValues &values) const
    {
        HRFTestFile file = HRFTestFile::fixture("id3v23.mp3");
        file.set(values);
        QFile copy(path(QStringLiteral("music/") + name));
        ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
        copy.write(file.bytes);
    }
    /// Three files of two artists: "b.mp3", "a.mp3", "c.mp3".
    void makeFiles() const
    {
        makeFile(QStringLiteral("a.mp3"),
                 {{HRFTagKey::title, QStringLiteral("Two")},
                  {HRFTagKey::artist, QStringLiteral("Ann")}});
        makeFile(QStringLiteral("b.mp3"),
                 {{HRFTagKey::title, QStringLiteral("One")},
                  {HRFTagKey::artist, QStringLiteral("Bob")}});
        makeFile(QStringLiteral("c.mp3"),
                 {{HRFTagKey::title, QStringLiteral("Three")},
                  {HRFTagKey::artist, QStringLiteral("Ann")}});
    }
    void drop(const std::vector<HRFFileReference> &files) const
    {
        const auto data = HRFFileURIs::mimeData(files);
        QDragEnterEvent enter({50, 50}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(window, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(50, 50), Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(window, &event);
    }
    void dropFolder(int expectedRows) const
    {
        drop({music(QString())});
        waitUntil([&] { return window->model().rowCount() == expectedRows; });
        waitForWork();
    }
    static void waitForWork()
    {
        HRFBackground::waitUntilIdle();
        QCoreApplication::processEvents();
        waitUntil([] { return HRFMetaFileManager::fileOperationQueue().operationCount() == 0; });
    }

    static int column(const QString &name) { return HRFListColumns::indexOf(name); }
    QModelIndex cell(int row, const QString &name) const
    {
        return window->model().index(row, column(name));
    }
    /// What a column shows from top to bottom.
    std::vector<QString> texts(const QString &name) const
    {
        std::vector<QString> shown;
        for (int row = 0; row < window->model().rowCount(); ++row)
            shown.push_back(cell(row, name).data().toString());
        return shown;
    }
    void click(const QModelIndex &index, Qt::KeyboardModifiers modifiers = {}) const
    {
        window->view().scrollTo(index);
        QTest::mouseClick(window->view().viewport(), Qt::LeftButton, modifiers,
                          window->view().visualRect(index).center());
    }
    /// Opens the editor of a cell, and types into it what is shown instead.
    void type(const QModelIndex &index, const QString &text) const
    {
        window->header().setColumnShown(index.column(), true);
        click(index);
        window->commands().action(QStringLiteral("editCell"))->trigger();
        const QPointer editor(window->findChild<QWidget *>(QStringLiteral("cellEditor")));
        ASSERT_TRUE(editor);
        QCoreApplication::processEvents(); // lets a name select its base
        if (auto *field = qobject_cast<QLineEdit *>(editor))
            field->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        if (editor && editor->isVisible()) // Return was not accepted
            QTest::keyClick(editor, Qt::Key_Escape);
        delete editor; // so that it is not found again
    }
    /// What is said below a field.
    QString shownError() const
    {
        for (const QLabel *label : window->findChildren<QLabel *>(QStringLiteral("inputError")))
            if (label->isVisible())
                return label->text();
        return {};
    }
    static QString onDisk(const HRFFileReference &file, HRFTagKey key)
    {
        const auto engine = HRFTagEngine::initWithURL(file);
        return engine ? (*engine)->valueForKey(key).toString() : QStringLiteral("no engine");
    }
    /// Clicks the title of a column.
    void sortBy(const QString &name, Qt::KeyboardModifiers modifiers = {}) const
    {
        const HRFListHeader &header = window->header();
        const int x = header.sectionViewportPosition(column(name)) + 12;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, modifiers, {x, header.height() / 2});
    }

    HRFScriptedInteraction user;
    std::unique_ptr<HRFDataFolder> dataFolder;
    std::unique_ptr<HRFApplicationDelegate> application;
    HRFListWindow *window = nullptr;
};
