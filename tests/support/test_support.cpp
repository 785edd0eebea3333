#include "support/test_support.h"

#include "orba/module_manager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

ScriptedPresenter::ScriptedPresenter(QList<bool> answers) : answers_(std::move(answers))
{
    nexo::ManagerHelper::instance()->setPresenter(this);
}

ScriptedPresenter::~ScriptedPresenter()
{
    nexo::ManagerHelper::instance()->setPresenter(nullptr);
}

bool ScriptedPresenter::ask(const nexo::Message &message)
{
    asked.append(message);
    if (answers_.isEmpty())
        return message.rejectText.isEmpty();
    return answers_.takeFirst();
}

void ScriptedPresenter::notify(const QString &level, const QString &text)
{
    notices.append(level + QStringLiteral(": ") + text);
}

bool waitUntil(const std::function<bool()> &condition, int boundMs)
{
    QElapsedTimer clock;
    clock.start();
    QTimer wake; // so that a loop without events still looks at the condition
    wake.start(5);
    while (!condition()) {
        if (clock.elapsed() > boundMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

orba::Node nodeFromJson(const char *json)
{
    orba::Node node;
    orba::FormatError error;
    if (!orba::ModuleManager::fromJson(json, &node, &error))
        ADD_FAILURE() << qPrintable(error.text()) << " in " << json;
    return node;
}

QString nodeText(const orba::Node &node)
{
    return QString::fromUtf8(orba::ModuleManager::toJson(node, false));
}

std::ostream &operator<<(std::ostream &out, const QString &text)
{
    return out << '"' << text.toUtf8().constData() << '"';
}

void PrintTo(const QString &text, std::ostream *out)
{
    *out << text;
}

namespace orba {
std::ostream &operator<<(std::ostream &out, const Node &node)
{
    return out << nodeText(node).toUtf8().constData();
}
} // namespace orba
