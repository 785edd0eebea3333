// Opening a folder in the file dialog, and the look at what is plugged in that is taken every second. The floors read the
// same folder, with size and date of every file, and the same lists of the kernel, and do nothing with them.

#include "workstation/medium_folder.h"
#include "workstation/removable_media.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <sys/stat.h>

namespace {

constexpr int kFiles = 1000;

/// A folder of recipes with numbers in their names.
struct Folder
{
    Folder()
    {
        for (int i = 0; i < kFiles; ++i) {
            QFile file(root.filePath(QStringLiteral("Рецепт линии %1.xml").arg(i * 7 % kFiles)));
            file.open(QIODevice::WriteOnly);
        }
    }
    QTemporaryDir root;
};

void OpenFolder(benchmark::State &state)
{
    const Folder folder;
    const palx::FileFilter filter = palx::parseFilters(QStringLiteral("XML (*.xml)")).first();
    for (auto _ : state) {
        palx::FolderContents contents = palx::readFolder(folder.root.path(), folder.root.path(), filter);
        palx::sortEntries(&contents.entries, palx::EntryOrder::Name, Qt::AscendingOrder);
        if (contents.entries.size() != kFiles)
            state.SkipWithError("files are missing");
    }
}
BENCHMARK(OpenFolder)->Unit(benchmark::kMillisecond);

void OpenFolderFloor(benchmark::State &state)
{
    const Folder folder;
    const QByteArray path = QFile::encodeName(folder.root.path());
    for (auto _ : state) {
        DIR *entries = ::opendir(path.constData());
        qint64 bytes = 0;
        while (const dirent *entry = ::readdir(entries)) {
            struct stat facts;
            if (::fstatat(::dirfd(entries), entry->d_name, &facts, 0) == 0)
                bytes += facts.st_size;
        }
        ::closedir(entries);
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(OpenFolderFloor)->Unit(benchmark::kMillisecond);

void LookForMedia(benchmark::State &state)
{
    const palx::MediaPlaces places;
    for (auto _ : state)
        benchmark::DoNotOptimize(palx::pluggedMedia(places));
}
BENCHMARK(LookForMedia)->Unit(benchmark::kMicrosecond);

void LookForMediaFloor(benchmark::State &state)
{
    for (auto _ : state) {
        QFile mounts(QStringLiteral("/proc/self/mountinfo"));
        mounts.open(QIODevice::ReadOnly);
        benchmark::DoNotOptimize(mounts.readAll());
        benchmark::DoNotOptimize(QDir(QStringLiteral("/sys/class/block")).entryList());
    }
}
BENCHMARK(LookForMediaFloor)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
