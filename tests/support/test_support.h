#pragma once

#include "nexo/manager_helper.h"
#include "orba/node.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <ostream>

/// Answers the host's messages from a script and remembers what was asked. Installs itself for its lifetime.
class ScriptedPresenter : public nexo::MessagePresenter
{
public:
    explicit ScriptedPresenter(QList<bool> answers = {});
    ~ScriptedPresenter() override;
    bool ask(const nexo::Message &message) override;
    void notify(const QString &level, const QString &text) override;
    /// The answer to the next question, instead of what was left of the script.
    void answer(bool accepts) { answers_ = {accepts}; }

    QList<nexo::Message> asked;
    QStringList notices; ///< "level: text"

private:
    QList<bool> answers_;
};

/// Runs the event loop until the condition holds; false after the bound.
bool waitUntil(const std::function<bool()> &condition, int boundMs = 5000);

/// A node tree from JSON; a fault in the text fails the test.
orba::Node nodeFromJson(const char *json);
QString nodeText(const orba::Node &node);

std::ostream &operator<<(std::ostream &out, const QString &text);
/// GoogleTest would print a QString as a list of letters.
void PrintTo(const QString &text, std::ostream *out);
namespace orba {
std::ostream &operator<<(std::ostream &out, const Node &node);
}
