#include "ui/stick_fixture.h"

#include "support/scripted_files.h"
#include "workstation/medium_choice.h"

#include <gtest/gtest.h>

TEST(XFileDialog, BeginsWhereItWasLastAndGoesNoHigherThanTheDisk)
{
    const Stick stick;
    stick.file("Рецепты/2026/a.xml");
    const QString last = stick.root + QStringLiteral("/Рецепты/2026");
    FileDialog dialog(stick, FileRequest::Open, last);
    EXPECT_EQ(dialog.text("lblPath"), "ДИСК 上海 \u203a Рецепты \u203a 2026");
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("a.xml")));
    dialog.press("btnUp");
    dialog.press("btnUp");
    EXPECT_EQ(dialog.text("lblPath"), "ДИСК 上海");
    EXPECT_FALSE(partOf<QPushButton>(dialog, "btnUp")->isEnabled());
    const FileDialog elsewhere(stick, FileRequest::Open, "/etc");
    EXPECT_EQ(elsewhere.text("lblPath"), "ДИСК 上海");
}

TEST(XFileDialog, OpensAFileOfAFolder)
{
    const Stick stick;
    const QString wanted = stick.file("Рецепты/паллета 1.xml");
    stick.file("Рецепты/b.txt");
    stick.file(".hidden.xml");
    FileDialog dialog(stick, FileRequest::Open);
    dialog.show();
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("Рецепты")));
    EXPECT_FALSE(dialog.canConfirm());
    dialog.touch("Рецепты");
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("паллета 1.xml")));
    dialog.touch("паллета 1.xml");
    dialog.press("btnOk");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.chosen(), QStringList(wanted));

    const QString other = stick.file("c.xml");
    stick.file("b.xml");
    FileDialog several(stick, FileRequest::OpenSeveral);
    several.show();
    for (const char *name : {"b.xml", "c.xml", "b.xml"}) // the second touch lets go
        several.touch(QLatin1String(name));
    several.press("btnOk");
    EXPECT_EQ(several.chosen(), QStringList(other));
}

TEST(XFileDialog, SavesUnderANameThatTheDiskCanKeep)
{
    const Stick stick;
    const struct
    {
        QString typed;
        const char *saved; // null: refused
        const char *text;
    } cases[] = {
        {QStringLiteral(" паллета 1 "), "паллета 1.xml", "паллета 1.xml"},
        {QStringLiteral("../a"), nullptr, "A name does not begin with a dot: the file would be hidden."},
        {QString(252, QLatin1Char('x')), nullptr, "The name is too long: 256 of 255 characters."},
        {QString(), nullptr, "The file needs a name."}};
    for (const auto &c : cases) {
        FileDialog dialog(stick, FileRequest::Save, "pallet.xml");
        dialog.type(c.typed);
        EXPECT_EQ(dialog.text(), QString::fromUtf8(c.text));
        dialog.press("btnOk");
        dialog.accept(); // as the enter key would
        const QString path = stick.root + QLatin1Char('/') + QString::fromUtf8(c.saved);
        EXPECT_EQ(dialog.chosen(), c.saved ? QStringList(path) : QStringList()) << c.typed;
    }
}

TEST(XFileDialog, AsksBeforeItReplacesAFile)
{
    const Stick stick;
    const QString there = stick.file("pallet.xml");
    for (const bool answer : {false, true}) {
        ScriptedPresenter presenter({answer});
        FileDialog dialog(stick, FileRequest::Save, "pallet.xml");
        dialog.press("btnOk");
        ASSERT_EQ(presenter.asked.size(), 1);
        EXPECT_EQ(messageText(presenter.asked.first()),
                  "Replace the file? / pallet.xml is there already. / Cancel");
        EXPECT_EQ(dialog.chosen(), answer ? QStringList(there) : QStringList());
    }
}

TEST(XFileDialog, AWriteProtectedDiskIsOnlyRead)
{
    Stick stick;
    stick.file("a.xml");
    stick.mount("ro");
    for (const auto kind : {FileRequest::Save, FileRequest::Folder}) {
        const FileDialog dialog(stick, kind, "pallet.xml");
        EXPECT_EQ(dialog.text(), "The disk is write-protected. Nothing can be saved on it.");
        EXPECT_FALSE(dialog.canConfirm());
        EXPECT_FALSE(partOf<QPushButton>(dialog, "btnNewFolder")->isEnabled());
    }
    FileDialog dialog(stick, FileRequest::Open);
    dialog.show();
    dialog.touch("a.xml");
    EXPECT_TRUE(dialog.canConfirm());
}

TEST(XFileDialog, FollowsTheDisk)
{
    Stick stick;
    stick.file("a.xml");
    stick.machine.setMounts({});
    FileDialog dialog(stick, FileRequest::Open);
    dialog.show();
    const auto *body = partOf<QWidget>(dialog, "pagNoDisk");
    EXPECT_TRUE(body->isVisible());
    EXPECT_FALSE(dialog.canConfirm());
    stick.mount();
    EXPECT_TRUE(waitUntil([&] { return !body->isVisible(); }));
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("a.xml")));
    dialog.touch("a.xml");
    EXPECT_TRUE(dialog.canConfirm());
    stick.machine.setMounts({});
    EXPECT_TRUE(waitUntil([&] { return body->isVisible(); }));
    EXPECT_EQ(dialog.text(), "The disk ДИСК 上海 was pulled out.");
    EXPECT_FALSE(dialog.canConfirm());
}

TEST(XFileDialog, ADiskThatIsPulledLastIsNotWrittenTo)
{
    Stick stick;
    stick.file("pallet.xml");
    stick.machine.addStick("sdc", "8:33");
    const QString other = stick.machine.addFolder("other");
    struct Puller : nexo::MessagePresenter
    {
        bool ask(const nexo::Message &) override
        {
            pull();
            return true;
        }
        void notify(const QString &, const QString &) override {}
        std::function<void()> pull;
    } puller;
    puller.pull = [&] { stick.machine.setMounts({FakeMachine::mount("8:33", other)}); };
    nexo::ManagerHelper::instance()->setPresenter(&puller);
    FileDialog dialog(stick, FileRequest::Save, "pallet.xml");
    dialog.press("btnOk");
    nexo::ManagerHelper::instance()->setPresenter(nullptr);
    EXPECT_EQ(dialog.chosen(), QStringList()) << "the other disk was not asked about";
    EXPECT_EQ(dialog.text(), "The disk ДИСК 上海 was pulled out.");
    EXPECT_EQ(dialog.text("lblPath"), "other");
}

TEST(XFileDialog, SaysWhetherTheDiskMayBePulled)
{
    const Stick stick;
    const StandInDisk disk(stick.root);
    const QString path = stick.file("a.xml");
    const QString elsewhere = stick.machine.path();
    EXPECT_TRUE(xFileDialog::SystemFileSync(path));
    EXPECT_FALSE(xFileDialog::SystemFileSync(path + QStringLiteral(".gone")));
    EXPECT_EQ(xFileDialog::removalText(path, true), "It is safe to pull out the disk ДИСК 上海 now.");
    EXPECT_EQ(xFileDialog::removalText(path, false),
              "Do not pull out the disk ДИСК 上海 yet: it has not taken everything.");
    EXPECT_EQ(xFileDialog::removalText(elsewhere, true), QString());
    EXPECT_EQ(palx::targetProblem(stick.root, "a.zip"), QString());
    QDir().mkpath(stick.root + "/dir.zip");
    EXPECT_EQ(palx::targetProblems(stick.root, {"a.zip", "dir.zip"}),
              QStringList({QString(), "There is a folder of that name."}));
    const QTemporaryDir own; // what is left when a disk is pulled
    EXPECT_TRUE(palx::targetProblem(own.path(), "a.zip").contains("on no disk that is plugged in"));
}
