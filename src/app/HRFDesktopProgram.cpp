#include "app/HRFDesktopProgram.h"

#include "app/HRFApplicationDelegate.h"
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
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>

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

int runWindows(const Options &options)
{
    const HRFWidgetsInteraction interaction;
    const QString path =
        options.dataFolder.empty() ? HRFDataFolder::userFolder() : decoded(options.dataFolder);
    const auto files = absolutePaths(options.paths);
    const auto folder = HRFDataFolder::take(path);
    if (!folder) {
        if (folder.error().code == EWOULDBLOCK && HRFInstance::handOver(files, path))
            return EXIT_SUCCESS;
        HRFUserInteraction::current().presentError(folder.error());
        return EXIT_FAILURE;
    }
    HRFApplicationDelegate application;
    HRFInterruption::handleSignals(HRFInterruption::Again::EndsAtOnce);
    QSocketNotifier interruption(HRFInterruption::descriptor(), QSocketNotifier::Read);
    QObject::connect(&interruption, &QSocketNotifier::activated, &application, [&] {
        interruption.setEnabled(false);
        application.quit();
    });
    const HRFInstance instance(path);
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
    const QApplication qtApplication(own, argv);
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
