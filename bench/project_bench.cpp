// Making a robot project with all its tasks, programs and variables, over the simulated controller of this process. The
// floor writes the same files with the same contents, synced as they are: what the disk takes.

#include "linked_session.h"
#include "nexo/manager_helper.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QSaveFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

const QString kName = QStringLiteral("Line 1");

class AcceptAll : public nexo::MessagePresenter
{
public:
    AcceptAll() { nexo::ManagerHelper::instance()->setPresenter(this); }
    ~AcceptAll() override { nexo::ManagerHelper::instance()->setPresenter(nullptr); }
    bool ask(const nexo::Message &) override { return true; }
    void notify(const QString &, const QString &) override {}
};

/// The plug-in without pages, and a controller that keeps its state.
class Cell
{
public:
    Cell() { session_ = startLinked(folder_.path()); }
    QString project() const
    {
        return folder_.filePath(QStringLiteral("workspace/%1/%2").arg(m("nexo.r.id")->getString(), kName));
    }
    QString other() const { return folder_.filePath(QStringLiteral("floor")); }
    void add()
    {
        if (!palx::addProject(kName, std::nullopt, &steps_))
            qFatal("no project was made");
    }
    void remove() { palx::deleteProject(kName, &steps_); }

private:
    AcceptAll presenter_;
    QTemporaryDir folder_;
    BothSides steps_;
    std::unique_ptr<host::HostSession> session_;
};

void addProject(benchmark::State &state)
{
    Cell cell;
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        cell.add();
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        cell.remove();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(addProject)->UseManualTime()->Unit(benchmark::kMillisecond);

void writeFiles(const QMap<QString, QByteArray> &files, const QString &folder)
{
    for (auto each = files.begin(); each != files.end(); ++each) {
        const QString name = folder + QLatin1Char('/') + each.key();
        QDir().mkpath(QFileInfo(name).path());
        QSaveFile file(name);
        file.open(QIODevice::WriteOnly);
        file.write(each.value());
        file.commit();
    }
}

void writeSameFiles(benchmark::State &state)
{
    Cell cell;
    cell.add();
    QMap<QString, QByteArray> files;
    QDirIterator each(cell.project(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        file.open(QIODevice::ReadOnly);
        files.insert(QDir(cell.project()).relativeFilePath(file.fileName()), file.readAll());
    }
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        writeFiles(files, cell.other());
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        QDir(cell.other()).removeRecursively();
    }
    state.counters["files"] = files.size();
}
BENCHMARK(writeSameFiles)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
