#include "line.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using orba::Node;

namespace {

void copyFolder(const QString &from, const QString &to)
{
    ASSERT_TRUE(QDir().mkpath(to));
    for (const QFileInfo &entry : QDir(from).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir())
            copyFolder(entry.filePath(), target);
        else
            ASSERT_TRUE(QFile::copy(entry.filePath(), target)) << qPrintable(target);
    }
}

} // namespace

Line::Line(const LineSetup &setup) : setup_(setup), made_(madeProject(setup))
{
    copyFolder(made_.dataFolder, folder_.filePath(QStringLiteral("data")));
    open();
}

void Line::open()
{
    controller::StationOptions options;
    options.dataFolder = folder_.filePath(QStringLiteral("data"));
    options.workspaceFolder = made_.workspaceFolder;
    options.seed = setup_.seed;
    station_ = std::make_unique<controller::Station>(options);
}

void Line::restart()
{
    EXPECT_TRUE(station_->save());
    station_.reset();
    open();
}

// ---------------------------------------------------------------- running

QString Line::ask(const char *request, const char *payload)
{
    Node node = nodeFromJson(payload);
    return station_->request(QString::fromLatin1(request), node).refusal;
}

void Line::start()
{
    Node move = nodeFromJson(R"({"type":"j","motion":{"toolset":"","speed":1000},"point":null})");
    move.find(u"motion.toolset")->setString(station_->tree().getString(u"quill.body.toolset"));
    move.find(u"point")->assign(made_.home);
    Node nothing;
    ASSERT_EQ(QString(), station_->request(QStringLiteral("motion.start"), move).refusal);
    while (station_->isBusy()) {
        station_->advance(0.1);
        station_->request(QStringLiteral("motion.hold"), nothing);
    }
    ASSERT_TRUE(station_->tree().getBool(u"nexo.robot.arrived"));
    ASSERT_EQ("", ask("program.run"));
}

void Line::run(double seconds)
{
    station_->simulate(seconds);
    station_->publishAll();
}

bool Line::runUntil(const std::function<bool()> &condition, double bound)
{
    const double end = world().now() + bound;
    while (!condition() && world().now() < end)
        station_->simulate(0.1);
    station_->publishAll();
    return condition();
}

bool Line::isFull()
{
    const bool isLeft = setup_.scheme == 1 || number("flagL") == 1;
    const bool isRight = setup_.scheme == 0 || number("flagR") == 1;
    return isLeft && isRight && number("palletStatus") == 0;
}

void Line::exchangePallet(int side)
{
    const bool isLeft = side == 0;
    EXPECT_EQ("",
              ask("cell.pallet", isLeft ? R"({"side":0,"action":"take"})" : R"({"side":1,"action":"take"})"));
    run(6); // lamps and buzzer take their time
    EXPECT_EQ(
        "", ask("cell.pallet", isLeft ? R"({"side":0,"action":"bring"})" : R"({"side":1,"action":"bring"})"));
    run(2);
    EXPECT_TRUE(pallet(side).boxes().empty()) << "nothing begins before the confirmation";
    EXPECT_EQ("", ask("cell.input",
                      isLeft ? R"({"signal":"DI2_3","seconds":5})" : R"({"signal":"DI2_4","seconds":5})"));
    run(6);
}

double Line::real(const char *variable)
{
    const auto *variables = runner().variables();
    const int id = variables ? variables->idOf(variable) : -1;
    if (id < 0) {
        const Node *list = station_->tree().find(u"quill.project.var._list");
        const Node *value = controller::Variables::value(*list, QString::fromLatin1(variable));
        return value ? value->toDouble() : -1;
    }
    const controller::script::Value &value = variables->value(id);
    if (const auto *whole = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*whole);
    const auto *flag = std::get_if<bool>(&value);
    return flag ? *flag : std::get<double>(value);
}

qint64 Line::number(const char *variable)
{
    return static_cast<qint64>(real(variable));
}

void Line::set(const char *variable, int value)
{
    Node values;
    values.ensure(QString::fromLatin1(variable))->setInt(value);
    EXPECT_EQ(QString(), station_->request(QStringLiteral("monitor.pers.modify"), values).refusal);
}

QString Line::violations()
{
    QString text;
    for (const auto &violation : world().violations())
        text += QStringLiteral("%1 %2:%3 layer %4 piece %5 %6\n")
                    .arg(QString::fromStdString(violation.where.task),
                         QString::fromStdString(violation.where.file))
                    .arg(violation.where.line)
                    .arg(violation.layer)
                    .arg(violation.piece)
                    .arg(QString::fromStdString(violation.what));
    return text;
}
