#include "project_fixture.h"

#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "orba/module_manager.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

using orba::Node;

ProjectTest::ProjectTest()
{
    ::chmod(folder_.path().toLocal8Bit().constData(),
            0755); // tests of read-only folders lay down the rights of root
}

void ProjectTest::start()
{
    if (session_)
        settle();
    session_.reset();
    if (!controller_) {
        controller::StationOptions options;
        options.workspaceFolder = workspace();
        controller_ = std::make_shared<controller::Controller>(options);
    }
    open(true);
    ASSERT_TRUE(waitUntil([] { return !m("nexo.r.id")->getString().isEmpty(); }));
}

void ProjectTest::settle()
{
    const auto *link = host::ControllerLink::current();
    QCoreApplication::processEvents();
    ASSERT_TRUE(waitUntil([link] { return link->unsettledEdits() == 0 && link->isIdle(); }));
}

void ProjectTest::startWithoutController()
{
    session_.reset();
    controller_.reset();
    open(false);
}

void ProjectTest::open(bool isLinked)
{
    host::SessionOptions options;
    options.workspaceFolder = workspace();
    options.linkedPlugins = QStringList(QStringLiteral("palx_workstation"));
    options.pages = false;
    if (isLinked)
        options.carrier = [this] {
            auto way = std::make_unique<controller::FaultyCarrier>(
                std::make_unique<controller::InProcessCarrier>(controller_));
            way_ = way.get();
            return way;
        };
    session_ = std::make_unique<host::HostSession>(options);
    EXPECT_TRUE(session_->start());
    QObject::connect(
        m("quill.log.current"), &orba::ModuleObject::changed, session_.get(), [this](const QVariant &json) {
            const Node record = nodeFromJson(json.toString().toUtf8());
            records.append(record.getString(u"level") + QStringLiteral(": ") + record.getString(u"title"));
        });
    takeMessages();
}

QString ProjectTest::place(const QString &path) const
{
    return workspace() + QStringLiteral("/SIM-0001/") + path;
}

QByteArray ProjectTest::content(const QString &path) const
{
    QFile file(place(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void ProjectTest::putFile(const QString &path, const QByteArray &content) const
{
    QFile file(place(path));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file.fileName()).path()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

std::map<std::string, std::string> ProjectTest::files() const
{
    std::map<std::string, std::string> found;
    const QDir top(workspace());
    QDirIterator each(workspace(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = top.relativeFilePath(each.next());
        QFile file(each.filePath());
        if (path.contains(QLatin1String("palx_default")))
            continue;
        if (each.fileInfo().isDir())
            found[path.toStdString() + '/'];
        else if (!each.fileInfo().isFile())
            found[path.toStdString()] = "(special)"; // a pipe would be waited for
        else
            found[path.toStdString()] =
                file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(closed)";
    }
    return found;
}

QStringList ProjectTest::takeMessages()
{
    QStringList messages;
    for (const nexo::Message &message : std::as_const(presenter.asked))
        messages.append(QStringLiteral("ask: ") + message.text);
    messages += presenter.notices;
    presenter.asked.clear();
    presenter.notices.clear();
    return messages;
}

void ProjectTest::add(const QString &name, const char *parameters)
{
    presenter.answer(true);
    steps.parameters = nodeFromJson(parameters);
    EXPECT_TRUE(palx::addProject(name, std::nullopt, &steps)) << takeMessages().join(QLatin1Char('|'));
    settle(); // the controller builds it
    takeMessages();
}

QStringList ProjectTest::tasks()
{
    QStringList lines;
    const Node &list = m("quill.project.task._list")->node();
    for (int t = 0; t < list.size(); ++t) {
        lines.append(list.at(t)->getString(u"name") + QLatin1Char(':'));
        for (int f = 0; f < list.at(t)->child(QStringView(u"files"))->size(); ++f)
            lines.last() += QLatin1Char(' ') + list.at(t)->getString(QStringLiteral("files.#%1.name").arg(f));
    }
    return lines;
}

QString ProjectTest::current()
{
    return m("quill.project.cur_project")->getString();
}
