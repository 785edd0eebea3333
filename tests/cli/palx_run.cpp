#include "palx_run.h"

#include "orba/module_manager.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr int kRunBoundMs = 400000; // a demonstration fills two pallets, under a sanitizer on a busy machine

} // namespace

PalxRun runPalx(const QStringList &arguments, const QString &folder)
{
    QTemporaryDir home;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.isEmpty() ? home.path() : folder);
    process.start(QStringLiteral(PALX_BIN_DIR "/palx"), arguments, QIODevice::ReadOnly);
    PalxRun run;
    if (process.waitForFinished(kRunBoundMs) && process.exitStatus() == QProcess::NormalExit)
        run.code = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

QString examplePath(const QString &name)
{
    return QStringLiteral(PALX_SOURCE_DIR "/examples/") + name;
}

QStringList exampleFiles()
{
    const QDir folder(QStringLiteral(PALX_SOURCE_DIR "/examples"));
    return folder.entryList({QStringLiteral("*.xml"), QStringLiteral("*.json")}, QDir::Files, QDir::Name);
}

orba::Node exampleContent(const QString &name, int layers)
{
    orba::Node content;
    orba::FormatError error;
    const bool isXml = name.endsWith(QLatin1String(".xml"));
    EXPECT_TRUE(isXml ? orba::ModuleManager::readFromXmlFile(examplePath(name), &content, &error)
                      : orba::ModuleManager::readFromJson(examplePath(name), &content, &error))
        << qPrintable(error.text());
    if (isXml)
        content.remove(u"default");
    orba::Node recipes = isXml ? content : *content.child(u"stacks");
    for (int i = 0; layers >= 0 && i < recipes.size(); ++i) {
        orba::Node *all = recipes.at(i)->find(u"layers");
        while (all->size() > layers)
            all->removeAt(all->size() - 1);
    }
    return recipes;
}

void writeRecipes(const QString &file, const orba::Node &recipes)
{
    EXPECT_TRUE(orba::ModuleManager::writeToXmlFile(recipes, file)) << qPrintable(file);
}

orba::Node parsed(const QByteArray &json)
{
    orba::Node node;
    orba::FormatError error;
    EXPECT_TRUE(orba::ModuleManager::fromJson(json, &node, &error)) << qPrintable(error.text());
    return node;
}

QStringList childNames(const orba::Node &node)
{
    QStringList names;
    for (int i = 0; i < node.size(); ++i)
        names.append(node.at(i)->name().toString());
    return names;
}

QStringList texts(const orba::Node &list)
{
    QStringList result;
    for (int i = 0; i < list.size(); ++i)
        result.append(list.at(i)->toString());
    return result;
}

QByteArray fileContent(const QString &name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

void writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(name);
    EXPECT_EQ(file.write(content), content.size());
}
