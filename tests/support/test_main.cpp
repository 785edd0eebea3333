#include "support/test_support.h"

#include <QApplication>

#include <gtest/gtest.h>

// What Qt's offscreen platform and gestures keep until the process ends. Known to the sanitizer before main; the same
// list stands in lsan.supp for the programs that tests start.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\nleak:libfontconfig.so\nleak:QScroller::grabGesture\n";
}

// Every test program runs under one offscreen application: widgets, scenes and timers are then at hand.
int main(int argc, char **argv)
{
    qputenv("LSAN_OPTIONS", "suppressions=" PALX_SOURCE_DIR "/tests/support/lsan.supp:print_suppressions=0");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) // asked while building, where a sanitizer's suppressions are not set
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
