#include "support/test_support.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRawFont>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

// The translation files of the tree itself: an operator must never meet a text that nobody translated.

namespace {

struct Translation
{
    bool finished = true;
    QStringList forms; ///< one, or as many as the language has plural forms
};

using Texts = QMap<QString, Translation>; // by "context: source"

struct TranslationFile
{
    const char *folder;
    const char *alias;
    const char *language;
    int pluralForms;

    QString name() const
    {
        return QStringLiteral("%1_%2.ts").arg(QLatin1String(alias), QLatin1String(language));
    }
    QString path() const
    {
        return QStringLiteral(PALX_SOURCE_DIR "/%1/%2").arg(QLatin1String(folder), name());
    }
};

void PrintTo(const TranslationFile &file, std::ostream *out)
{
    *out << qPrintable(file.name());
}

Translation readTranslation(QXmlStreamReader *xml)
{
    Translation translation;
    translation.finished = !xml->attributes().hasAttribute(QLatin1String("type"));
    QString text;
    while (
        !(xml->readNext() == QXmlStreamReader::EndElement && xml->name() == QLatin1String("translation"))) {
        if (xml->isCharacters())
            text += xml->text();
        else if (xml->isStartElement())
            translation.forms << xml->readElementText();
        else if (xml->atEnd())
            break;
    }
    if (translation.forms.isEmpty())
        translation.forms << text;
    return translation;
}

Texts readTexts(const QString &path)
{
    Texts texts;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    QXmlStreamReader xml(&file);
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("comment"))
            source += QStringLiteral(" | ") + xml.readElementText();
        else if (xml.name() == QLatin1String("translation"))
            texts.insert(context + QStringLiteral(": ") + source, readTranslation(&xml));
    }
    EXPECT_FALSE(xml.hasError()) << path << ": " << xml.errorString();
    return texts;
}

/// What a translation has to keep: placeholders in any order, line breaks, blanks at both ends.
QString fixedParts(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(?:L?[0-9]+|n)"));
    QStringList parts;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        parts << match.next().captured();
    parts.sort();
    parts << QStringLiteral("lines=%1").arg(text.count(QLatin1Char('\n')) + 1);
    if (text.startsWith(QLatin1Char(' ')))
        parts << QStringLiteral("blank before");
    if (text.endsWith(QLatin1Char(' ')))
        parts << QStringLiteral("blank after");
    return parts.join(QLatin1Char(' '));
}

QString sourceOf(const QString &key)
{
    return key.mid(key.indexOf(QLatin1String(": ")) + 2).section(QLatin1String(" | "), 0, 0);
}

} // namespace

class Translations : public testing::TestWithParam<TranslationFile>
{
};

TEST_P(Translations, AreFinishedAndKeepPlaceholdersLinesAndOuterBlanks)
{
    const Texts texts = readTexts(GetParam().path());
    EXPECT_GT(texts.size(), 100);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        EXPECT_TRUE(text->finished) << text.key();
        EXPECT_TRUE(text->forms.size() == 1 || text->forms.size() == GetParam().pluralForms) << text.key();
        for (const QString &form : text->finished ? text->forms : QStringList()) {
            EXPECT_FALSE(form.trimmed().isEmpty()) << text.key();
            EXPECT_EQ(fixedParts(form), fixedParts(sourceOf(text.key()))) << text.key() << " -> " << form;
        }
    }
}

const TranslationFile kFiles[] = {{"resources/language", "palx_workstation", "ru", 3},
                                  {"resources/language", "palx_workstation", "cn", 1},
                                  {"resources/language", "palx_workstation", "jp", 1},
                                  {"resources/language", "palx_workstation", "kr", 1},
                                  {"host/language", "palx_host", "ru", 3},
                                  {"host/language", "palx_host", "cn", 1},
                                  {"host/language", "palx_host", "jp", 1},
                                  {"host/language", "palx_host", "kr", 1}};

INSTANTIATE_TEST_SUITE_P(Files, Translations, testing::ValuesIn(kFiles));

/// lupdate reads the sources again, into copies; what it adds or drops is missing or left over in the tree.
TEST(TranslationFiles, HoldTheTextsOfTheSources)
{
    const QTemporaryDir copies;
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(PALX_LUPDATE));
    script.setProcessEnvironment(environment);
    script.start(QStringLiteral(PALX_SOURCE_DIR "/scripts/update-translations.sh"),
                 {QStringLiteral("--drop-vanished"), QStringLiteral("--into"), copies.path()});
    ASSERT_TRUE(script.waitForFinished(120000)) << script.errorString();
    ASSERT_LT(script.exitCode(), 2) << script.readAllStandardError().constData();
    for (const TranslationFile &file : kFiles) {
        const Texts held = readTexts(file.path());
        const Texts wanted = readTexts(copies.filePath(file.name()));
        EXPECT_GT(wanted.size(), 100);
        for (const QString &text : wanted.keys())
            EXPECT_TRUE(held.contains(text)) << file.name() << " lacks: " << text;
        for (const QString &text : held.keys())
            EXPECT_TRUE(wanted.contains(text)) << file.name() << " holds, the sources do not: " << text;
    }
}

/// A bare machine has these two fonts and no other; what neither holds would be shown as a box.
TEST(TranslationFiles, NeedNoOtherFontsThanThePanelsOwn)
{
    QVector<QRawFont> fonts;
    for (const char *family : {"DejaVu Sans", "WenQuanYi Micro Hei"}) {
        fonts << QRawFont::fromFont(QFont(QLatin1String(family)));
        ASSERT_EQ(fonts.last().familyName(), QLatin1String(family))
            << "scripts/install-packages.sh installs it";
    }
    for (const TranslationFile &file : kFiles) {
        QSet<uint> letters;
        const Texts texts = readTexts(file.path());
        for (const Translation &text : texts)
            for (const uint letter : text.forms.join(QString()).toUcs4())
                letters.insert(letter);
        letters.remove('\n');
        for (const uint letter : qAsConst(letters))
            EXPECT_TRUE(fonts[0].supportsCharacter(letter) || fonts[1].supportsCharacter(letter))
                << file.name() << ": " << QString::fromUcs4(&letter, 1);
    }
}
