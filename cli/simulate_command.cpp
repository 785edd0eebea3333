#include "simulate.h"

#include "controller/cell/faults.h"
#include "orba/module_manager.h"
#include "simulation_run.h"

#include <QFile>

namespace cli {

using controller::cell::Violation;
using orba::Node;

namespace {

Node violationNode(const Violation &violation)
{
    Node node;
    node.ensure(u"task")->setString(QString::fromStdString(violation.where.task));
    node.ensure(u"file")->setString(QString::fromStdString(violation.where.file));
    node.ensure(u"line")->setInt(violation.where.line);
    node.ensure(u"layer")->setInt(violation.layer);
    node.ensure(u"piece")->setInt(violation.piece);
    node.ensure(u"what")->setString(QString::fromStdString(violation.what));
    return node;
}

QByteArray resultJson(const SimulationResult &result)
{
    Node node;
    node.ensure(u"pallets")->setInt(result.pallets);
    node.ensure(u"boxes")->setInt(result.boxes);
    node.ensure(u"expected")->setInt(result.expected);
    Node *violations = node.ensure(u"violations");
    violations->reset(Node::Kind::List);
    for (const Violation &violation : result.violations)
        violations->add()->assign(violationNode(violation));
    node.ensure(u"max_error_mm")->setDouble(result.maxErrorMm);
    node.ensure(u"max_error_deg")->setDouble(result.maxErrorDeg);
    node.ensure(u"seconds")->setDouble(result.seconds);
    node.ensure(u"wall_seconds")->setDouble(result.wallSeconds);
    node.ensure(u"boxes_per_hour")->setDouble(result.boxesPerHour());
    node.ensure(u"counters")->assign(result.counters);
    return orba::ModuleManager::toJson(node, true) + '\n';
}

QByteArray resultTable(const SimulationResult &result)
{
    QString text = QStringLiteral("%1 of %2 boxes on %3 full pallets\n")
                       .arg(result.boxes)
                       .arg(result.expected)
                       .arg(result.pallets);
    text += QStringLiteral("%1 s, %2 boxes an hour, %3 s a box\n")
                .arg(result.seconds, 0, 'f', 1)
                .arg(result.boxesPerHour(), 0, 'f', 0)
                .arg(result.boxes > 0 ? result.seconds / result.boxes : 0, 0, 'f', 2);
    text += QStringLiteral("largest distance from a put point %1 mm, %2 degrees\n")
                .arg(result.maxErrorMm, 0, 'f', 3)
                .arg(result.maxErrorDeg, 0, 'f', 4);
    text += QStringLiteral("%1 violations\n").arg(result.violations.size());
    for (const Violation &violation : result.violations)
        text += QStringLiteral("  %1 %2:%3, layer %4, piece %5: %6\n")
                    .arg(QString::fromStdString(violation.where.task),
                         QString::fromStdString(violation.where.file))
                    .arg(violation.where.line)
                    .arg(violation.layer)
                    .arg(violation.piece)
                    .arg(QString::fromStdString(violation.what));
    text += QStringLiteral("simulated in %1 s, %2 times as fast as real\n")
                .arg(result.wallSeconds, 0, 'f', 2)
                .arg(result.wallSeconds > 0 ? result.seconds / result.wallSeconds : 0, 0, 'f', 0);
    return text.toUtf8();
}

} // namespace

bool readFault(const QString &text, PlannedFault *fault, QString *why)
{
    controller::cell::Fault known;
    bool isTime = false;
    fault->name = text.section(QLatin1Char('@'), 0, 0);
    fault->time = text.section(QLatin1Char('@'), 1).toDouble(&isTime);
    if (!controller::cell::faultOfName(fault->name, &known))
        *why = QStringLiteral("no fault is called \"%1\"; there are: %2")
                   .arg(fault->name, controller::cell::faultNames().join(QStringLiteral(", ")));
    else if (!isTime || !(fault->time >= 0) || !(fault->time < 1e9))
        *why = QStringLiteral("\"%1\" does not say when: NAME@SECONDS").arg(text);
    else
        fault->name = controller::cell::faultName(known);
    return why->isEmpty();
}

int runSimulate(const SimulateRequest &request)
{
    SimulationProject project;
    SimulationResult result;
    QFile trace(request.traceFile);
    if (!request.traceFile.isEmpty() && !trace.open(QIODevice::WriteOnly))
        return refuse(request.traceFile + QStringLiteral(": ") + trace.errorString());
    trace.close();
    if (!project.make(request))
        return kRefused;
    const bool isRun = runSimulation(project, request, &result);
    const QByteArray text = request.recipes.output == Output::Json ? resultJson(result) : resultTable(result);
    return putResult(text) && isRun && result.isGood() ? kDone : kRefused;
}

} // namespace cli
