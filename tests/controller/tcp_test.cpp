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

TEST(TcpServer, NonsenseIsAnsweredAndHungUpOn)
{
    Controller machine{StationOptions()};
    TcpServer server(&machine);
    QString why;
    ASSERT_TRUE(server.listen(0, &why)) << why;
    std::string tooLong = host::encodeFrame(host::LinkMessage());
    tooLong.replace(8, 4, "\xff\xff\xff\x7f");
    for (const std::string &bytes :
         {std::string(300000, 'x'), std::string("GET / HTTP/1.1\r\n\r\n"), tooLong}) {
        QTcpSocket socket;
        socket.connectToHost("127.0.0.1", server.port());
        ASSERT_TRUE(waitUntil([&] { return socket.state() == QAbstractSocket::ConnectedState; }));
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
        std::string frame;
        EXPECT_TRUE(waitUntil([&] {
            frame += socket.readAll().toStdString();
            return socket.state() == QAbstractSocket::UnconnectedState;
        }));
        host::LinkMessage answer;
        EXPECT_TRUE(host::decodeFrame(frame, &answer, &why)) << why;
        EXPECT_EQ(Kind::Error, answer.kind);
    }
    EXPECT_TRUE(waitUntil([&] { return server.peerCount() == 0; }));
}

TEST(TcpServer, APeerThatReadsNothingIsDropped)
{
    Controller machine{StationOptions()};
    TcpServer server(&machine);
    QString why;
    ASSERT_TRUE(server.listen(0, &why)) << why;
    QTcpSocket socket;
    socket.setReadBufferSize(1);
    socket.connectToHost("127.0.0.1", server.port());
    host::LinkMessage hello;
    hello.kind = Kind::Hello;
    hello.payload.ensure(u"session")->setString("raw");
    std::string sent = host::encodeFrame(hello);
    Node recipe = makeRecipe("A", 0, 0);
    recipe.set(u"desc", QString(1 << 20, QLatin1Char('x')));
    host::LinkMessage request;
    request.kind = Kind::Request;
    request.name = "pallet.set.one";
    sent += host::encodeFrame(request, recipe);
    request.name = "pallet.get.list";
    for (int i = 0; i < 40; ++i) // 1 MB of answer each, to nobody
        sent += host::encodeFrame(request);
    ASSERT_TRUE(waitUntil([&] { return socket.state() == QAbstractSocket::ConnectedState; }));
    socket.write(sent.data(), static_cast<qint64>(sent.size()));
    EXPECT_TRUE(waitUntil([&] { return server.peerCount() == 1; }));
    EXPECT_TRUE(waitUntil([&] { return server.peerCount() == 0; }, 60000));
}

TEST(ControllerProgram, AFolderThatAnotherOneUsesIsRefused)
{
    const ControllerProcess other;
    QProcess program;
    program.start(QStringLiteral(PALX_BIN_DIR "/palx_controller"), {"--data", other.dataFolder()});
    ASSERT_TRUE(program.waitForFinished(20000));
    EXPECT_EQ(1, program.exitCode());
    const QByteArray error = program.readAllStandardError();
    EXPECT_TRUE(error.contains("another controller uses the folder")) << error.constData();
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
