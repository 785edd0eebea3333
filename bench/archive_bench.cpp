// Projects as archives: out and in, with parameters, judging, flushing and renaming. The floor is what the archive library
// takes to pack the same folder, or to unpack the same archive, and the disk to take it. A second floor of an export is
// all that has to be done, in the shortest way: the parameters put into the project's own "var.xml", a bare zip, and "var.xml"
// put back. A third is the program "zip".

#include "linked_session.h"
#include "project/rules/project_export.h"
#include "project/rules/project_import.h"
#include "project/rules/project_parameters_file.h"
#include "project/rules/project_record.h"
#include "workstation/file_sync.h"

#include "nexo/manager_helper.h"
#include "orba/module_manager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <JlCompress.h>

#include <benchmark/benchmark.h>

#include <ctime>
#include <functional>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString kName = QStringLiteral("Line 1");

class Quiet : public nexo::MessagePresenter
{
public:
    Quiet() { nexo::ManagerHelper::instance()->setPresenter(this); }
    ~Quiet() override { nexo::ManagerHelper::instance()->setPresenter(nullptr); }
    bool ask(const nexo::Message &) override { return true; }
    void notify(const QString &level, const QString &text) override
    {
        if (level != QLatin1String("info"))
            qFatal("%s", qPrintable(text));
    }
};

/// A project as the program templates make it, with so many program files added, and their count of lines.
class Cell
{
public:
    Cell(int files, int lines)
    {
        session_ = startLinked(folder_.path());
        BothSides steps;
        if (!palx::addProject(kName, std::nullopt, &steps))
            qFatal("no project was made");
        while (!QFile::exists(project() + QStringLiteral("/.rlprog"))) // the controller builds it
            QCoreApplication::processEvents();
        QDir().mkpath(disk());
        for (int i = 0; i < files; ++i)
            putProgram(QStringLiteral("%1/task%2/program%3.mod").arg(project()).arg(i % 6).arg(i), i, lines);
    }

    QString project() const
    {
        return folder_.filePath(QStringLiteral("workspace/%1/%2").arg(m("nexo.r.id")->getString(), kName));
    }
    QString disk() const { return folder_.filePath(QStringLiteral("disk")); }
    QString archive() const { return palx::archivePath(disk(), kName); }
    QString other() const { return folder_.filePath(QStringLiteral("workspace/other")); }
    void sendOut(palx::Progress *progress)
    {
        if (!palx::exportProjects({{kName}, false, disk(), QString()}, progress))
            qFatal("no archive was made");
    }
    void bringIn()
    {
        palx::NoProgress nobody;
        palx::ImportRequest request;
        request.archives = QStringList(archive());
        request.onClash = palx::OnClash::Replace;
        request.programFolder = folder_.filePath(QStringLiteral("program"));
        if (!palx::importProjects(request, &nobody))
            qFatal("no project was made");
    }

private:
    /// Packs about as well as programs do.
    static void putProgram(const QString &name, int seed, int lines)
    {
        QDir().mkpath(QFileInfo(name).path());
        QFile file(name);
        file.open(QIODevice::WriteOnly);
        for (int line = 0; line < lines; ++line)
            file.write(QStringLiteral("  MoveL(Offs(place%1, 0, 0, %2), v%3, z%4, tool%5)\n")
                           .arg(qHash(line * 31 + seed) % 1000)
                           .arg(qHash(line + seed * 17) % 900)
                           .arg(100 + seed % 50)
                           .arg(line % 7)
                           .arg(seed % 3)
                           .toUtf8());
    }

    Quiet presenter_;
    QTemporaryDir folder_;
    std::unique_ptr<host::HostSession> session_;
};

/// The file, and then what leads to it.
void flush(const QString &name)
{
    QFile file(name);
    file.open(QIODevice::ReadOnly);
    ::fsync(file.handle());
    palx::syncFileSystem(name);
}

double now(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

struct Took
{
    double wall = 0; ///< [s]
    double work = 0; ///< of all threads [s]
};

Took took(const std::function<void()> &work)
{
    const Took start{now(CLOCK_MONOTONIC), now(CLOCK_PROCESS_CPUTIME_ID)};
    work();
    return {now(CLOCK_MONOTONIC) - start.wall, now(CLOCK_PROCESS_CPUTIME_ID) - start.work};
}

/// Both in turn in one run, so that the machine is the same. "ratio" compares the work of the processor, which others on the
/// machine and the disk do not disturb; "wall_ratio" the time that went by.
void compare(benchmark::State &state, const std::function<void()> &ours, const std::function<void()> &floor)
{
    Took all, floors;
    for (auto _ : state) {
        const Took bare = took(floor);
        const Took mine = took(ours);
        floors = {floors.wall + bare.wall, floors.work + bare.work};
        all = {all.wall + mine.wall, all.work + mine.work};
        state.SetIterationTime(mine.wall);
    }
    const double rounds = double(state.iterations()) / 1000;
    state.counters["work_ms"] = all.work / rounds;
    state.counters["floor_work_ms"] = floors.work / rounds;
    state.counters["ratio"] = all.work / floors.work;
    state.counters["wall_ratio"] = all.wall / floors.wall;
}

/// Files that are added, and lines of each; many rounds of what is soon done, because others disturb the machine.
void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Args({0, 0})->Args({50, 250})->Args({100, 250})->Args({200, 250})->Args({2000, 250});
    benchmark->MinTime(2);
}

/// A window that is to stay alive meanwhile: long calls get a thread.
class Window : public palx::NoProgress
{
public:
    bool mustAnswer() const override { return true; }
};

void bareZip(const QString &archive, const Cell &cell)
{
    JlCompress::compressDir(archive, cell.project(), true, QDir::Hidden);
    flush(archive);
}

/// What somebody would type who has no panel, and the disk flushed. Only the time that goes by can be compared with it.
void zipProgram(const QString &archive, const Cell &cell)
{
    QFile::remove(archive); // it would update it
    const QByteArray name = QFile::encodeName(archive), folder = QFile::encodeName(cell.project());
    const char *const arguments[] = {"zip", "-rq", name.constData(), folder.constData(), nullptr};
    pid_t zip = 0;
    int status = 0;
    if (::posix_spawnp(&zip, "zip", nullptr, nullptr, const_cast<char **>(arguments), environ) != 0 ||
        ::waitpid(zip, &status, 0) != zip || status != 0)
        qFatal("the program zip failed");
    flush(archive);
}

void writeList(const orba::Node &list, const QString &file)
{
    if (!orba::ModuleManager::writeToXmlFile(list, file))
        qFatal("the list of variables was not written");
    palx::syncFileSystem(file);
}

/// A kill or a full disk would leave the project with the parameters, and half an archive.
void bareExport(const Cell &cell)
{
    const QString file = cell.project() + QStringLiteral("/var.xml");
    QString why;
    orba::Node fixed;
    if (!palx::readVariableList(file, &fixed, &why))
        qFatal("%s", qPrintable(why));
    orba::Node temporary;
    temporary.assign(fixed);
    palx::addParameterVariables(palx::projectRecord(kName)->node(), &temporary);
    writeList(temporary, file);
    bareZip(cell.disk() + QStringLiteral("/bare.zip"), cell);
    writeList(fixed, file);
}

template <class Progress> void exportProject(benchmark::State &state)
{
    Cell cell(int(state.range(0)), int(state.range(1)));
    Progress progress;
    compare(
        state, [&] { cell.sendOut(&progress); },
        [&] { bareZip(cell.disk() + QStringLiteral("/bare.zip"), cell); });
}
BENCHMARK_TEMPLATE(exportProject, palx::NoProgress)->Apply(sizes);
BENCHMARK_TEMPLATE(exportProject, Window)->Apply(sizes);

void exportAgainstBareExport(benchmark::State &state)
{
    Cell cell(int(state.range(0)), int(state.range(1)));
    palx::NoProgress nobody;
    compare(
        state, [&] { cell.sendOut(&nobody); }, [&] { bareExport(cell); });
}
BENCHMARK(exportAgainstBareExport)->Apply(sizes);

void exportAgainstZipProgram(benchmark::State &state)
{
    Cell cell(int(state.range(0)), int(state.range(1)));
    palx::NoProgress nobody;
    compare(
        state, [&] { cell.sendOut(&nobody); },
        [&] { zipProgram(cell.disk() + QStringLiteral("/bare.zip"), cell); });
}
BENCHMARK(exportAgainstZipProgram)->Apply(sizes);

void importProject(benchmark::State &state)
{
    Cell cell(int(state.range(0)), int(state.range(1)));
    palx::NoProgress nobody;
    cell.sendOut(&nobody);
    compare(
        state, [&] { cell.bringIn(); },
        [&] {
            QDir(cell.other()).removeRecursively();
            JlCompress::extractDir(cell.archive(), cell.other());
            palx::syncFileSystem(cell.other());
        });
}
BENCHMARK(importProject)->Apply(sizes);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
