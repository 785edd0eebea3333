#include "formats/store_fixture.h"

#include "orba/tree_registry.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

using orba::Name;
using orba::Node;

namespace {

const QString kModule = QStringLiteral("test_module");

} // namespace

StoreFixture::StoreFixture()
{
    // Tests of rights look at it as another user.
    QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ReadGroup |
                                              QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    writeTemplate(
        "\xef\xbb\xbf{\"default\": {\"name\": \"\", \"height\": 150}, \"pallets\": [{\"name\": \"EU\"}],"
        " \"trigger\": {\"refresh\": null, \"reset\": null}, \"stacks\": [], \"projects\": {}}");
}

StoreFixture::~StoreFixture()
{
    stop();
}

void StoreFixture::writeTemplate(const QByteArray &json) const
{
    QFile file(templateFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(json);
}

bool StoreFixture::start()
{
    store_ = std::make_unique<host::Store>();
    QString why;
    const bool isOpened = store_->open(data(), &why);
    EXPECT_EQ(isOpened, why.isEmpty());
    bindError_.clear();
    host::bindTree(kModule, templateFile(), true, &bindError_);
    return isOpened;
}

void StoreFixture::stop()
{
    store_.reset();
    if (orba::TreeRegistry::instance().module(kModule))
        orba::TreeRegistry::instance().removeModule(kModule);
}

void StoreFixture::restart()
{
    stop();
    ASSERT_TRUE(start());
}

Node &StoreFixture::tree() const
{
    return *orba::TreeRegistry::instance().module(kModule);
}

Node *StoreFixture::addStack(int number) const
{
    const double place[] = {number * 0.1, 1.0 / (number + 3), -0.0};
    Node *stack = stacks()->add();
    stack->reset(Node::Kind::Map);
    stack->add(Name(u"name"))->setString(QStringLiteral("Короб %1").arg(number));
    stack->add(Name(u"height"))->setInt(number);
    Node *product = stack->ensure(u"points.put.#0.#0.put_p");
    product->ensureChild(Name(u"trans"))->setDoubles(place, 3);
    return stack;
}

int StoreFixture::savedRows() const
{
    QSignalSpy saved(store_.get(), &host::Store::saved);
    QString why;
    EXPECT_TRUE(store_->save(&why)) << why.toStdString();
    return saved.isEmpty() ? 0 : saved.first().first().toInt();
}

QStringList StoreFixture::filesSetAside() const
{
    return QDir(data()).entryList({QStringLiteral("store.sqlite.damaged-*")}, QDir::Files);
}
