#include "controller/tcp_carrier.h"
#include "controller/tcp_server.h"
#include "controller_process.h"
#include "raw_panel.h"
#include "recipes.h"

#include <QElapsedTimer>
#include <QTcpSocket>

#include <random>

using namespace controller;
using orba::Node;
using Kind = host::LinkMessage::Kind;

namespace {

class TcpTest : public ::testing::Test
{
protected:
    TcpTest()
    {
        QString why;
        EXPECT_TRUE(server.listen(0, &why)) << why;
    }
    std::unique_ptr<QTcpSocket> connectSocket()
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost("127.0.0.1", server.port());
        EXPECT_TRUE(waitUntil([&] { return socket->state() == QAbstractSocket::ConnectedState; }));
        return socket;
    }
    static std::string frameOf(Kind kind, const QString &name = QString())
    {
        host::LinkMessage message;
        message.kind = kind;
        message.name = name;
        if (kind == Kind::Hello)
            message.payload.ensure(u"session")->setString("raw");
        return host::encodeFrame(message);
    }
    static void write(QTcpSocket &socket, const std::string &bytes)
    {
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    /// Reads until a message of that kind came.
    static bool comes(QTcpSocket &socket, Kind kind)
    {
        host::FrameReader reader;
        return waitUntil([&] {
            const QByteArray bytes = socket.readAll();
            reader.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
            std::string frame;
            host::LinkMessage message;
            while (reader.next(&frame))
                if (host::decodeFrame(frame, &message) && message.kind == kind)
                    return true;
            return false;
        });
    }

    Controller machine{StationOptions()};
    TcpServer server{&machine};
};

} // namespace

TEST_F(TcpTest, NonsenseIsAnsweredAndHungUpOn)
{
    std::mt19937 random(3);
    std::string noise(300000, '\0');
    for (char &byte : noise)
        byte = static_cast<char>(random());
    std::string tooLong = frameOf(Kind::Ping);
    tooLong.replace(8, 4, "\xff\xff\xff\x7f");
    for (const std::string &bytes :
         {noise, std::string("GET / HTTP/1.1\r\n\r\n"), tooLong, frameOf(Kind::Hello) + "PXL2"}) {
        const auto socket = connectSocket();
        write(*socket, bytes);
        EXPECT_TRUE(comes(*socket, Kind::Error));
        EXPECT_TRUE(waitUntil([&] { return socket->state() == QAbstractSocket::UnconnectedState; }));
    }
    EXPECT_TRUE(waitUntil([this] { return server.peerCount() == 0; }));
    const auto good = connectSocket();
    write(*good, frameOf(Kind::Hello));
    EXPECT_TRUE(comes(*good, Kind::Hello));
}

TEST_F(TcpTest, APeerThatReadsNothingIsDropped)
{
    const auto socket = connectSocket();
    socket->setReadBufferSize(1);
    write(*socket, frameOf(Kind::Hello));
    Node recipe = makeRecipe("A", 0, 0);
    recipe.set(u"desc", QString(1 << 20, QLatin1Char('x')));
    host::LinkMessage request;
    request.kind = Kind::Request;
    request.name = "pallet.set.one";
    write(*socket, host::encodeFrame(request, recipe));
    for (int i = 0; i < 40; ++i) // 1 MB of answer each, to nobody
        write(*socket, frameOf(Kind::Request, "pallet.get.list"));
    EXPECT_TRUE(waitUntil([this] { return server.peerCount() == 1; }));
    EXPECT_TRUE(waitUntil([this] { return server.peerCount() == 0; }, 60000));
}

TEST_F(TcpTest, TakesOnlySoManyPeers)
{
    std::vector<std::unique_ptr<QTcpSocket>> sockets;
    for (int i = 0; i < TcpServer::kMaxPeers; ++i)
        sockets.push_back(connectSocket());
    EXPECT_TRUE(waitUntil([this] { return server.peerCount() == TcpServer::kMaxPeers; }));
    const auto extra = connectSocket();
    EXPECT_TRUE(waitUntil([&] { return extra->state() == QAbstractSocket::UnconnectedState; }));
    sockets.pop_back();
    EXPECT_TRUE(waitUntil([this] { return server.peerCount() == TcpServer::kMaxPeers - 1; }));
}

// ---------------------------------------------------------------- the program

TEST(ControllerProgram, AControllerThatIsNotThereIsToldOnce)
{
    QTcpServer free;
    ASSERT_TRUE(free.listen(QHostAddress::LocalHost));
    const quint16 port = free.serverPort();
    free.close();
    RawPanel panel(std::make_unique<TcpCarrier>("127.0.0.1", port));
    RawPanel::Arrival arrival;
    ASSERT_TRUE(panel.next(&arrival));
    EXPECT_FALSE(arrival.isFrame || arrival.isOpen);
    EXPECT_FALSE(arrival.text.empty());
    ASSERT_TRUE(free.listen(QHostAddress::LocalHost, port));
    ASSERT_TRUE(panel.next(&arrival)) << "it goes on looking";
    EXPECT_TRUE(arrival.isOpen);
}

TEST(ControllerProgram, RefusesWrongOptions)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const ControllerProcess other;
    const struct
    {
        QStringList arguments;
        int code;
        const char *text;
    } cases[] = {
        {{"--port", "70000"}, 2, "--port"},
        {{"--data", folder.filePath("file/below")}, 1, "cannot be made"},
        {{"--data", other.dataFolder()}, 1, "another controller uses the folder"},
        {{"--port", QString::number(other.port())}, 1, "cannot listen on port"},
        {{"--help"}, 0, ""},
    };
    for (const auto &c : cases) {
        QProcess program;
        program.start(QStringLiteral(PALX_BIN_DIR "/palx_controller"), c.arguments);
        ASSERT_TRUE(program.waitForFinished(20000)) << c.arguments.join(' ');
        EXPECT_EQ(c.code, program.exitCode()) << c.arguments.join(' ');
        const QByteArray error = program.readAllStandardError();
        EXPECT_TRUE(error.contains(c.text)) << error.constData();
    }
}

TEST(ControllerProgram, EndsWithItsInputWhenAsked)
{
    ControllerProcess program({"--stop-with-input"});
    program.process().write("a word that nobody reads\n");
    program.process().closeWriteChannel();
    EXPECT_TRUE(program.process().waitForFinished(20000));
    EXPECT_EQ(0, program.process().exitCode());
}

/// Whenever the power fails, what is found afterwards is one whole state: all recipes of one push, never a mixture.
TEST(ControllerProgram, SurvivesBeingKilledAtAnyTime)
{
    constexpr int kRecipes = 6;
    ControllerProcess program;
    std::mt19937 random(5);
    int version = 0;
    int lastKept = 0;
    int rises = 0;
    for (int round = 0; round < 7; ++round) {
        RawPanel panel(std::make_unique<TcpCarrier>("127.0.0.1", program.port()));
        const host::LinkMessage hello = panel.greet(QString("round %1").arg(round));
        EXPECT_EQ(0, hello.payload.find(u"state.#0.value.report")->size());
        const Node list = panel.ask("pallet.get.list").payload;
        if (round > 0) {
            ASSERT_EQ(kRecipes, list.size());
            for (int i = 0; i < kRecipes; ++i)
                EXPECT_EQ(list.getString(u"#0.desc"), list.at(i)->getString(u"desc")) << "round " << round;
            EXPECT_GE(list.getInt(u"#0.desc"), lastKept);
            rises += list.getInt(u"#0.desc") > lastKept ? 1 : 0;
            lastKept = static_cast<int>(list.getInt(u"#0.desc"));
        }
        QElapsedTimer time;
        time.start();
        const int bound =
            300 + (round == 0 ? 100 : static_cast<int>(random() % 500)); // saving starts at 300 ms
        do {
            Node all;
            ++version;
            for (int i = 0; i < kRecipes; ++i) {
                all.add()->assign(makeRecipe(QString(QChar('A' + i)), 1, 20, version));
                all.at(i)->set(u"desc", QString::number(version));
            }
            ASSERT_EQ(host::status::kDone, panel.ask("pallet.data", all).status);
        } while (time.elapsed() < bound);
        if (round == 0)
            program.stop(); // so that one is certainly kept
        else
            program.kill();
        program.start();
    }
    EXPECT_GT(rises, 1) << "it is kept while pushes go on";
}

TEST(ControllerProgram, ManyPushesLeaveNothingBehind)
{
    constexpr int kPushes = 1500;
    const ControllerProcess program;
    RawPanel panel(std::make_unique<TcpCarrier>("127.0.0.1", program.port()));
    panel.greet("one");
    int settled = 0;
    int largest = 0;
    for (int i = 1; i <= kPushes; ++i) {
        ASSERT_EQ(host::status::kDone, panel.ask("pallet.set.one", makeRecipe("A", 1, 3, i % 100)).status)
            << i;
        if (i % 100 == 0)
            largest = std::max(largest, program.residentKb());
        if (i == 500)
            settled = largest;
    }
    EXPECT_LE(largest - settled, 2048) << "KB more than after the first 500, 7 KB each";
    EXPECT_EQ(kPushes, panel.ask("link.info").payload.getInt(u"requests")) << "none lost, none doubled";
    EXPECT_EQ(1, panel.ask("pallet.get.list").payload.size());
}
