#include "controller/script/program.h"
#include "controller/script/vocabulary.h"
#include "support/cell_variables.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

/// What the description of the language shows can be run.
namespace {

using namespace controller::script;

QStringList description()
{
    QFile file(QStringLiteral(PALX_SOURCE_DIR "/docs/robot-script.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).split('\n');
}

void expectRuns(const QString &text)
{
    const Built built = build({"task0", TaskKind::Motion}, {{"docs", text.toStdString()}}, cellVariables());
    for (const Problem &problem : built.problems)
        ADD_FAILURE() << toText(problem) << "\n" << text.toStdString();
}

TEST(ScriptDescription, everyFunctionIsThereWithAnExample)
{
    static const QRegularExpression row("^\\| `(\\w+)\\(.*` \\| `([^`]+)` \\|");
    QStringList seen;
    for (const QString &line : description()) {
        const QRegularExpressionMatch match = row.match(line);
        if (!match.hasMatch())
            continue;
        const QString example = match.captured(2);
        const QString word = example.section(' ', 0, 0);
        const QString end = word == "IF" || word == "WHILE" || word == "FOR" ? "\nEND" + word : QString();
        expectRuns("PROC main()\nVAR string name\n" + example + end + "\nENDPROC\n");
        seen.append(line.section('|', 1, 1));
    }
    for (int i = 0; i <= static_cast<int>(Function::PalletWobjCount); ++i) {
        const QString name = signatureOf(static_cast<Function>(i)).name;
        EXPECT_FALSE(seen.filter('`' + name + '(').isEmpty()) << name.toStdString();
    }
}

} // namespace
