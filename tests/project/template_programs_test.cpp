// The copies of the program templates for sides and facings agree.

#include "project/rules/program_template.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// Statements without comments, blanks at the ends and empty lines.
QStringList statements(const QString &path)
{
    QStringList lines;
    QByteArray text;
    QString why;
    EXPECT_TRUE(palx::readProgramTemplate(path, &text, &why)) << why.toStdString();
    for (const QString &line : QString::fromUtf8(text).split('\n'))
        lines.append(line.section('!', 0, 0).trimmed());
    lines.removeAll(QString());
    return lines;
}

/// The other side's words for those of the left side.
QStringList mirrored(QStringList lines)
{
    constexpr const char *kNoVariables[] = {"GLOBAL", "MoveL"};
    for (QString &line : lines) {
        for (const char *word : kNoVariables)
            line.replace(word, QString(word).toLower());
        line.replace(QRegularExpression("\\b(flag)LL\\b"), "\\1RR");
        line.replace(QRegularExpression("\\b(\\w+)L(1?)\\b"), "\\1R\\2");
        line.replace("ZuoMaDuo", "YouMaDuo").replace("(palletIndexR, 0)", "(palletIndexR, 1)");
        line.replace("DI2_5", "DI2_6").replace("palletStatus := 1", "palletStatus := 2");
        line.replace("BHOME.y > 0", "BHOME.y <= 0");
        for (const char *word : kNoVariables)
            line.replace(QString(word).toLower(), word);
    }
    return lines;
}

TEST(TemplatePrograms, theRightSideMirrorsTheLeft)
{
    const QMap<QString, QString> pairs{
        {"/motion/main/main_single_left.mod", "/motion/main/main_single_right.mod"},
        {"/motion/init/Init_single_left.mod", "/motion/init/Init_single_right.mod"},
        {"/motion/init/Init_single_bollard_left.mod", "/motion/init/Init_single_bollard_right.mod"},
        {"/motion/left/ZuoMaDuo_single_suction_bollard_no_clapboard.mod",
         "/motion/right/YouMaDuo_single_suction_bollard_no_clapboard.mod"},
        {"/motion/left/ZuoMaDuo_single_suction_no_bollard_no_clapboard.mod",
         "/motion/right/YouMaDuo_single_suction_no_bollard_no_clapboard.mod"},
        {"/motion/back_home/BackHome_Forward-facing_left.mod",
         "/motion/back_home/BackHome_Forward-facing_right.mod"},
        {"/motion/back_home/BackHome_Forward-facing_bollard_left.mod",
         "/motion/back_home/BackHome_Forward-facing_bollard_right.mod"},
    };
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair)
        EXPECT_EQ(mirrored(statements(pair.key())).join('\n').toStdString(),
                  statements(pair.value()).join('\n').toStdString());
}

TEST(TemplatePrograms, wayHomeDiffersOnlyInTheSignOfY)
{
    for (const QString &path : palx::programTemplates()) {
        if (!path.contains("Forward-facing"))
            continue;
        QString text = statements(path).join('\n');
        text.replace("BHOME.y > 0", "?").replace("BHOME.y <= 0", "BHOME.y > 0").replace("?", "BHOME.y <= 0");
        EXPECT_EQ(text, statements(QString(path).replace("Forward-facing", "Backwards")).join('\n'));
    }
}

/// The document says of which text it was printed; build the target operator_document when this fails.
TEST(TemplatePrograms, theOperatorDocumentIsUpToDate)
{
    QFile text(PALX_SOURCE_DIR "/docs/robot-programs.md");
    QFile document(PALX_SOURCE_DIR "/resources/mod_template.pdf");
    ASSERT_TRUE(text.open(QIODevice::ReadOnly) && document.open(QIODevice::ReadOnly));
    const QByteArray sum =
        QCryptographicHash::hash(text.readAll(), QCryptographicHash::Sha1).toHex().left(12);
    const QByteArray printed = document.readAll();
    EXPECT_TRUE(printed.startsWith("%PDF-"));
    EXPECT_TRUE(
        QByteArray(printed).replace('\0', "").contains("of text " + sum)); // kept in two-byte characters
}

} // namespace
