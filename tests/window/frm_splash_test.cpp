// The splash window under a clock that the test sets.
#include "ui/windows/frm_splash.h"

#include "tests/core/fatal_errors.h"
#include "tests/core/locales.h"
#include "tests/core/named_row.h"
#include "tests/window/event_watcher.h"
#include "ui/windows/qt_platform.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDateTime>
#include <QFontDatabase>
#include <QFontInfo>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTest>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

namespace tarvix::testing {
namespace {

// Shows the seconds of a list, one for each look; the last one from then on. Who looks at it for
// ever is thrown out.
class ListedClock : public RecordingPlatform {
  public:
    int CurrentSecond() override {
        if (++looks > kMostLooks) {
            throw std::runtime_error("the splash waits for ever");
        }
        if (onLook) {
            onLook();
        }
        const int second = seconds.front();
        if (seconds.size() > 1) {
            seconds.pop_front();
        }
        return second;
    }

    void SleepUntilNextSecond() override { ++sleeps; }

    static constexpr int kMostLooks = 1000;
    std::deque<int> seconds{0, 3};
    int sleeps = 0;
    int looks = 0;
    std::function<void()> onLook;
};

class SplashTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        QImage logo(64, 16, QImage::Format_RGB32);
        logo.fill(Qt::red);
        ASSERT_TRUE(logo.save(folder_.filePath("BrindleLogo.jpg")));
        logo.fill(Qt::blue);
        ASSERT_TRUE(logo.save(folder_.filePath("VeltraneLogo.jpg")));
        module_.AppPath = AppPathOf(folder_.path());
    }

    // Shows the splash and lets the program go on until the hand-over.
    void Run() {
        splash_.show();
        EXPECT_TRUE(QTest::qWaitFor([this] { return steps_.contains("show"); }));
    }

    QTemporaryDir folder_;
    ListedClock clock_;
    Module1 module_{clock_, kUnitedStates};
    QStringList steps_;
    frmSplash splash_{module_,
                      {[this] { steps_ << (splash_.isVisible() ? "load" : "load without splash"); },
                       [this] { steps_ << (splash_.isVisible() ? "show on splash" : "show"); }}};
};

// A font of the desktop under another name, installed for this process while it lives: the tables
// of the desktop's font, as a file of the Open Font Format has them, with a table of names of its
// own.
class RenamedFont {
  public:
    explicit RenamedFont(const QString& family)
        : id_(QFontDatabase::addApplicationFontFromData(FileOf(family))) {
        EXPECT_TRUE(QFontDatabase::applicationFontFamilies(id_).contains(family));
    }
    ~RenamedFont() { QFontDatabase::removeApplicationFont(id_); }
    RenamedFont(const RenamedFont&) = delete;
    RenamedFont& operator=(const RenamedFont&) = delete;

  private:
    // One record: the family (1) in English (0x409) for Windows (3) in UTF-16 (1).
    static QByteArray NamesOf(const QString& family) {
        QByteArray names;
        QDataStream out(&names, QIODevice::WriteOnly);
        const auto bytes = static_cast<quint16>(2 * family.size());
        out << quint16{0} << quint16{1} << quint16{18};
        out << quint16{3} << quint16{1} << quint16{0x409} << quint16{1} << bytes << quint16{0};
        for (const QChar character : family) {
            out << character.unicode();
        }
        return names;
    }

    static QByteArray FileOf(const QString& family) {
        constexpr const char* kTables[] = {"OS/2", "cmap", "glyf", "head", "hhea",
                                           "hmtx", "loca", "maxp", "name", "post"};
        constexpr quint16 kCount = std::size(kTables);
        const QRawFont desktop = QRawFont::fromFont(QFont());
        QByteArray directory;
        QByteArray tables;
        QDataStream out(&directory, QIODevice::WriteOnly);
        // The version of outlines as TrueType has them; how to search in the directory, the check
        // sums and what aligns the tables are read by nobody.
        out << quint32{0x00010000} << kCount << quint16{0} << quint16{0} << quint16{0};
        for (const char* tag : kTables) {
            const QByteArray table =
                tag == QByteArray("name") ? NamesOf(family) : desktop.fontTable(tag);
            const auto place = static_cast<quint32>(12 + 16 * kCount + tables.size());
            out.writeRawData(tag, 4);
            out << quint32{0} << place << static_cast<quint32>(table.size());
            tables += table;
        }
        return directory + tables;
    }

    int id_;
};

TEST(SplashFontTest, FamiliesOfItsOwnWhereTheyAreInstalled) {
    const RenamedFont nameFont("Microsoft Sans Serif");
    const RenamedFont versionFont("MS Sans Serif");
    ListedClock clock;
    Module1 module(clock, kUnitedStates);
    const frmSplash splash(module, {});
    EXPECT_EQ(QFontInfo(splash.Label1->font()).family(), "Microsoft Sans Serif");
    EXPECT_EQ(QFontInfo(splash.Label2->font()).family(), "MS Sans Serif");
}

// How it looks is in the kept picture.
TEST_F(SplashTest, IsReadAloud) {
    EXPECT_EQ(splash_.windowTitle(), "Brindle Tarvix");
    EXPECT_EQ(splash_.imgBrindleLogo->accessibleName(), "Brindle");
    EXPECT_EQ(splash_.imgVeltraneLogo->accessibleName(), "Veltrane");
}

TEST_F(SplashTest, HandsOverInOrderAndOnlyOnce) {
    Run();
    EXPECT_EQ(steps_, (QStringList{"load", "show"}));
    EXPECT_FALSE(splash_.isVisible());
    splash_.show();
    QCoreApplication::processEvents();
    splash_.hide();
    EXPECT_EQ(steps_, (QStringList{"load", "show"}));
}

// The seconds of the clock, from the start on, and how often it is looked at.
struct WaitRow : NamedRow {
    std::deque<int> seconds;
    int looks;
};

class SplashWait : public SplashTest, public ::testing::WithParamInterface<WaitRow> {};

TEST_P(SplashWait, EndsByTheSecondsOfTheClock) {
    clock_.seconds = GetParam().seconds;
    Run();
    EXPECT_EQ(clock_.looks, GetParam().looks);
    // None before the first look of the wait, none after the last.
    EXPECT_EQ(clock_.sleeps, GetParam().looks - 2);
}

const WaitRow kWaitRows[] = {
    {"ThreeSeconds", {20, 20, 21, 22, 22, 23, 59}, 6},
    {"RollsOverAndEndsEarly", {58, 58, 59, 0, 1, 2}, 4},  // 58 to 0 is a difference of 58
    {"StartsInTheLastSecond", {59, 59, 0, 1, 2}, 3},
    {"StartsBeforeTheLastSeconds", {56, 57, 58, 59, 0}, 4},
    // A clock that is set meanwhile.
    {"SetBackByAFewSeconds", {30, 30, 31, 27}, 4},
    {"SetBackByASecondWaitsLonger", {30, 31, 29, 30, 31, 32, 33}, 7},
    {"SetBackByHoursIsNotNoticed", {30, 31, 31, 32, 33}, 5},
    {"SetBackAcrossTheMinute", {1, 2, 58}, 3},
    {"SetForward", {30, 45}, 2},
    {"LeapSecondIsARollover", {58, 59, 60, 0}, 4},
};

INSTANTIATE_TEST_SUITE_P(Clocks, SplashWait, ::testing::ValuesIn(kWaitRows), kRowName);

TEST_F(SplashTest, IsPaintedWithItsLogosBeforeTheWait) {
    const EventWatcher brindle(*splash_.imgBrindleLogo, QEvent::Paint);
    const EventWatcher veltrane(*splash_.imgVeltraneLogo, QEvent::Paint);
    const EventWatcher name(*splash_.Label1, QEvent::Paint);
    clock_.onLook = [&] {
        for (const EventWatcher* paints : {&brindle, &veltrane, &name}) {
            EXPECT_GT(paints->count(), 0);
        }
    };
    Run();
}

TEST_F(SplashTest, HandlesNoEventsDuringTheWait) {
    QObject probe;
    const EventWatcher delivered(probe, QEvent::User);
    clock_.seconds = {10, 10, 10, 11, 12, 13};
    clock_.onLook = [&] {
        if (clock_.looks == 1) {
            QCoreApplication::postEvent(&probe, new QEvent(QEvent::User));
        }
        EXPECT_EQ(delivered.count(), 0);
    };
    Run();
    EXPECT_TRUE(QTest::qWaitFor([&] { return delivered.count() == 1; }));
}

TEST_F(SplashTest, BuildsTheMainWindowWithinTheWait) {
    clock_.seconds = {10, 10, 13};
    frmSplash splash(module_,
                     {[this] { steps_ << "load"; }, [this] { steps_ << "show"; },
                      [this] { steps_ << QString("build on look %1").arg(clock_.looks); }});
    splash.Form_Activate();
    EXPECT_EQ(steps_, (QStringList{"build on look 1", "load", "show"}));
}

TEST_F(SplashTest, CloseRequestDoesNotStopTheStart) {
    clock_.onLook = [&] { EXPECT_FALSE(splash_.close()); };
    Run();
    EXPECT_EQ(steps_, (QStringList{"load", "show"}));
}

TEST_F(SplashTest, MissingLogoEndsTheProgram) {
    ASSERT_TRUE(QFile::remove(folder_.filePath("BrindleLogo.jpg")));
    const auto box = FatalBoxOf(clock_, [this] { splash_.Form_Activate(); });
    EXPECT_EQ(box.style, BoxStyle::Critical);
    EXPECT_EQ(box.buttons, BoxButtons::Ok);
    EXPECT_EQ(box.title, "Brindle Tarvix");
    EXPECT_EQ(box.text, "Run-time error: File not found: " + module_.AppPath + "BrindleLogo.jpg");
    EXPECT_EQ(clock_.looks, 0);
    EXPECT_TRUE(steps_.isEmpty());
}

TEST_F(SplashTest, LogoThatIsNoPictureEndsTheProgram) {
    QFile logo(folder_.filePath("VeltraneLogo.jpg"));
    ASSERT_TRUE(logo.open(QIODevice::WriteOnly));
    logo.write("no picture");
    logo.close();
    EXPECT_EQ(FatalBoxOf(clock_, [this] { splash_.Form_Activate(); }).text,
              "Run-time error: File not found: " + module_.AppPath + "VeltraneLogo.jpg");
}

TEST_F(SplashTest, FormLoadTakesTheProgramsOwnFolder) {
    splash_.Form_Load();
    EXPECT_EQ(module_.AppPath, AppPathOf(QCoreApplication::applicationDirPath()));
    EXPECT_TRUE(QFile::exists(QString::fromStdString(module_.AppPath)));
}

TEST(SplashClockTest, TheSleepEndsInALaterSecond) {
    QtPlatform platform;
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    platform.SleepUntilNextSecond();
    EXPECT_GT(QDateTime::currentSecsSinceEpoch(), before);
}

// A fixed folder stands in for one that can't be read.
TEST(AppPathTest, EndsInTheSystemsSeparator) {
#ifdef Q_OS_WIN
    EXPECT_EQ(AppPathOf("C:/Program Files/Tarvix"), "C:\\Program Files\\Tarvix\\");
    EXPECT_EQ(AppPathOf("D:/"), "D:\\");
    EXPECT_EQ(AppPathOf(""), "C:\\Tarvix\\");
#else
    EXPECT_EQ(AppPathOf("/usr/lib/tarvix"), "/usr/lib/tarvix/");
    EXPECT_EQ(AppPathOf("/"), "/");
    EXPECT_EQ(AppPathOf(""), "/opt/Tarvix/");
    EXPECT_EQ(AppPathOf(QString::fromUtf8("/home/jürgen/tarvix 3")), "/home/jürgen/tarvix 3/");
#endif
}

}  // namespace
}  // namespace tarvix::testing
