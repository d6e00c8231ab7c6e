#include "app/HRFDesktopProgram.h"

#include "app/HRFApplicationDelegate.h"
#include "app/HRFDesktopApplication.h"
#include "app/HRFIcons.h"
#include "app/HRFInstance.h"
#include "app/HRFTranslations.h"
#include "app/HRFWidgetsInteraction.h"
#include "document/HRFPlaylist.h"
#include "kit/HRFBackground.h"
#include "kit/HRFInterruption.h"
#include "kit/HRFUserDefaults.h"
#include "store/HRFDataFolder.h"

#include <CLI/CLI.hpp>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

struct Options
{
    std::string dataFolder{};
    std::string configFile{};
    std::vector<std::string> paths{};
};

QString decoded(const std::string &path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

/// The paths as they can be read from anywhere.
std::vector<HRFFileReference> absolutePaths(const std::vector<std::string> &paths)
{
    const QByteArray here = QFile::encodeName(QDir::currentPath()) + '/';
    std::vector<HRFFileReference> files;
    for (const std::string &path : paths) {
        const QByteArray native = QByteArray::fromStdString(path);
        files.push_back(
            HRFFileReference::fromNativePath(native.startsWith('/') ? native : here + native));
    }
    return files;
}

/// Takes the data folder, or hands the files to the program that has it: then there is none. A
/// program that starts does not take files yet, and one that ends does not any more.
HRFResult<std::unique_ptr<HRFDataFolder>> takeFolder(const QString &path,
                                                     const std::vector<HRFFileReference> &files)
{
    constexpr std::chrono::seconds patience(5);
    constexpr unsigned long betweenTries = 50;
    const QDeadlineTimer end(patience);
    auto folder = HRFDataFolder::take(path);
    while (!folder && folder.error().code == EWOULDBLOCK && !end.hasExpired()) {
        if (HRFInstance::handOver(files, path))
            return nullptr;
        QThread::msleep(betweenTries);
        folder = HRFDataFolder::take(path);
    }
    return folder;
}

int runWindows(const Options &options)
{
    HRFWidgetsInteraction interaction;
    const QString path =
        options.dataFolder.empty() ? HRFDataFolder::userFolder() : decoded(options.dataFolder);
    const auto files = absolutePaths(options.paths);
    const auto folder = takeFolder(path, files);
    if (!folder) {
        HRFUserInteraction::current().presentError(folder.error());
        return EXIT_FAILURE;
    }
    if (!*folder)
        return EXIT_SUCCESS;
    HRFApplicationDelegate application;
    HRFInterruption::handleSignals(HRFInterruption::Again::EndsAtOnce);
    QSocketNotifier interruption(HRFInterruption::descriptor(), QSocketNotifier::Read);
    QObject::connect(&interruption, &QSocketNotifier::activated, &application, [&] {
        interruption.setEnabled(false);
        interaction.cancelQuestions();
        application.terminate();
    });
    HRFInstance instance(path);
    QObject::connect(&application, &HRFApplicationDelegate::willTerminate, &instance,
                     &HRFInstance::close);
    QObject::connect(&instance, &HRFInstance::pathsDidArrive, &application,
                     &HRFApplicationDelegate::open);
    QObject::connect(
        &application, &HRFApplicationDelegate::didTerminate, qApp, [] { QCoreApplication::exit(); },
        Qt::QueuedConnection);
    application.newList();
    if (files.empty())
        application.documents().openStartupDirectory();
    else
        application.open(files);
    const int status = QApplication::exec();
    HRFBackground::waitUntilIdle();
    return status;
}

} // namespace

int HRFRunDesktopProgram(int argc, char **argv)
{
    Options options;
    CLI::App app("Edits the tags of audio files.", "lirra");
    app.set_version_flag("--version", "lirra " LIRRA_VERSION);
    app.add_option("--config", options.configFile, "Read the settings from this file")
        ->type_name("FILE");
    app.add_option("--data-dir", options.dataFolder, "Keep working data in this folder")
        ->type_name("DIR");
    app.add_option("PATH", options.paths, "Audio files, and folders to walk");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &stop) {
        constexpr int wrongUsage = 2;
        return app.exit(stop) == 0 ? EXIT_SUCCESS : wrongUsage;
    }
    int own = 1; // the rest is not for Qt
    const HRFDesktopApplication qtApplication(own, argv);
    HRFTranslations::install();
    QApplication::setApplicationName(u"lirra"_s);
    QApplication::setApplicationDisplayName(u"Lirra"_s);
    QApplication::setDesktopFileName(u"com.harrowfield.lirra"_s);
    QApplication::setQuitOnLastWindowClosed(false); // the end may have to wait for work on files
    QApplication::setWindowIcon(HRFIcons::named(u"lirra"_s));
    if (!options.configFile.empty())
        HRFUserDefaults::standard().setFilePath(decoded(options.configFile));
    return runWindows(options);
}
