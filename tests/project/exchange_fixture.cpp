#include "exchange_fixture.h"

#include "project/rules/project_record.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

ExchangeTest::ExchangeTest()
{
    QDir().mkpath(disk());
    QDir().mkpath(programs());
}

void ExchangeTest::putArchive(const QString &name, const std::vector<RawEntry> &entries) const
{
    QFile file(onDisk(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(rawZip(entries));
}

void ExchangeTest::putProject(const QString &name, const QByteArray &variables) const
{
    putFile(name + "/task0/main.mod", "GLOBAL PROC main()\nENDPROC\n");
    putFile(name + "/.rlprog", "{\"project_name\": \"" + name.toUtf8() + "\"}");
    if (!variables.isEmpty())
        putFile(name + "/var.xml", variables);
}

bool ExchangeTest::exportNames(const QStringList &names, palx::Progress *progress) const
{
    palx::NoProgress nobody;
    return palx::exportProjects({names, false, disk(), programs()}, progress ? progress : &nobody);
}

bool ExchangeTest::import(const QStringList &names, palx::OnClash onClash, palx::Progress *progress) const
{
    palx::NoProgress nobody;
    palx::ImportRequest request;
    for (const QString &name : names)
        request.archives.append(onDisk(name));
    request.onClash = onClash;
    request.programFolder = programs();
    return palx::importProjects(request, progress ? progress : &nobody);
}

QString ExchangeTest::record(const QString &name)
{
    const orba::ModuleObject *found = palx::projectRecord(name);
    if (found->isEmptyMobj())
        return QStringLiteral("none");
    QStringList values;
    for (const QString &key : palx::projectParameters())
        values.append(QString::number(found->getInt(key, -9)));
    return found->getString("name") + QLatin1Char(' ') + values.join(QLatin1Char(' '));
}

void ExchangeTest::setRecord(const QString &name, const char *parameters)
{
    palx::addProjectRecord(name);
    palx::writeProjectParameters(name, nodeFromJson(parameters));
}

QStringList ExchangeTest::names(const QString &folder)
{
    QStringList found;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext())
        found.append(QDir(folder).relativeFilePath(each.next()));
    found.sort();
    return found;
}
