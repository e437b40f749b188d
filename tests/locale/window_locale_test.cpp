// The whole window in the locales that differ most: separators, groups of two, digits and marks of
// their own, and no locale at all.
#include "tests/window_script/script_player.h"

#include <QJsonObject>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarvix {

namespace {

struct Written {
    const char* locale;
    std::string point;
    std::string group;
    bool lakh = false;  // groups of two above the thousands
};

void PrintTo(const Written& written, std::ostream* stream) {
    *stream << written.locale;
}

class WindowInLocale : public ::testing::TestWithParam<Written> {
  protected:
    void SetUp() override { Play({"locale " + std::string(GetParam().locale)}); }

    void Play(const std::vector<std::string>& script) {
        for (const std::string& line : script) {
            ASSERT_EQ(player_.Play(QString::fromStdString(line)), QString()) << line;
        }
        ASSERT_EQ(refused_, "");
    }

    std::string Text(const char* field) {
        return dynamic_cast<NumericField&>(
                   *player_.Window().form().Find(QLatin1String(field))->widget)
            .Text();
    }

    std::string Message() { return player_.Window().form().lblMsg->text().toStdString(); }

    // A number written with "." and "," in this locale; groups of a lakh where it has them.
    static std::string In(const std::string& american, const std::string& lakh = "") {
        std::string text;
        for (const char c : GetParam().lakh && !lakh.empty() ? lakh : american) {
            text += c == '.' ? GetParam().point : c == ',' ? GetParam().group : std::string(1, c);
        }
        return text;
    }

    // 4 inch pipe (4.026 in), 100 inches of water, beta 0.5. Whole sizes are there in every locale.
    static std::vector<std::string> RunWithBetaOneHalf() {
        return {"click optCalcFR", "choose cboNomSize 4", "type txtDeltaP 100",
                "type txtBeta " + In("0.5")};
    }

    std::string refused_;
    ScriptPlayer player_{[this](const QJsonObject& line) {
                             refused_ = line[QStringLiteral("refused")].toString().toStdString() +
                                        line[QStringLiteral("ended")].toString().toStdString();
                         },
                         [] { FAIL() << "the program ended"; }};
};

// Q = 0.619677 x 5.66646 x 0.25 x 4.026^2 x sqrt(100) = 142.2869 gallons a minute.
TEST_P(WindowInLocale, LiquidFlowAndBack) {
    Play({"click optLiquid", "type txtSGf 1", "type txtSGb 1"});
    Play(RunWithBetaOneHalf());
    EXPECT_EQ(Text("txtFlow"), In("142.3"));
    EXPECT_EQ(Text("txtOriBoreDia"), In("2.013"));
    Play({"choose cboTimeUnit Day"});  // x 1440
    EXPECT_EQ(Text("txtFlow"), In("204,893", "2,04,893"));
    EXPECT_EQ(Message(), "");

    // The flow becomes an entry, without groups, and the differential pressure is solved from it:
    // (204893 / 204893.17)^2 x 100 = 99.9998.
    Play({"click optCalcDP"});
    EXPECT_EQ(Text("txtFlow"), "204893");
    EXPECT_EQ(Text("txtDeltaP"), In("100.00"));
    Play({"click optCalcBeta"});
    EXPECT_EQ(Text("txtBeta"), In("0.50000"));
    EXPECT_TRUE(player_.Window().form().cmdPrint->isEnabled());
}

// 102 psig: 0.25704 + 2 x (0.26767 - 0.25704) / 5 = 0.261292 lb/ft3; 4559.7 lb/h.
TEST_P(WindowInLocale, SteamFromTheTable) {
    Play({"click optSteam", "click optSteamTbl", "type txtPf 102"});
    EXPECT_EQ(Text("txtDensity"), In("0.26129"));
    Play(RunWithBetaOneHalf());
    EXPECT_EQ(Text("txtFlow"), In("4,560"));
    Play({"type txtPf 3001"});
    EXPECT_EQ(Message(),
              "The Op. Pressure exceeds the steam table maximum: " + In("3,000") + " PSI (gauge)");
    EXPECT_EQ(Text("txtFlow"), "");
}

// 60 deg F, 100 psig, gravity 0.6: 116,393.8 standard cubic feet an hour.
TEST_P(WindowInLocale, GasFlow) {
    Play({"type txtTf 60", "type txtPf 100", "type txtGasSGb " + In("0.6"),
          "choose cboTimeUnit Hour"});
    Play(RunWithBetaOneHalf());
    EXPECT_EQ(Text("txtFlow"), In("116,394", "1,16,394"));
}

// The pasted text of another country is no number here, and the line says so.
TEST_P(WindowInLocale, NumbersOfOthersAreRefused) {
    const std::string other = GetParam().point == "." ? "0,5" : "0.5";
    Play({"click optLiquid", "paste txtSGf " + other});
    EXPECT_EQ(Message(), "Non-Numeric Flowing Specific Gravity");
    Play({"type txtSGf " + In("0.5")});
    EXPECT_EQ(Message(), "Incomplete fluid data (Base Specific Gravity).");
}

TEST_P(WindowInLocale, PipeListInMillimeters) {
    Play({"choose cboNomSize 4", "choose cboPipeIDUnit Millimeters"});
    const MainForm& form = player_.Window().form();
    EXPECT_EQ(form.cboNomSize->Text(), In("101.6"));
    EXPECT_EQ(form.cboPipeID->Text(),
              In("4.026") + "\"  (" + In("102.26") + " mm)  Sch 40, STD, Sch 40S");
}

INSTANTIATE_TEST_SUITE_P(Locales, WindowInLocale,
                         ::testing::Values(Written{"en_US", ".", ","}, Written{"de_DE", ",", "."},
                                           Written{"fr_FR", ",", "\u202F"},
                                           Written{"de_CH", ".", "\u2019"},
                                           Written{"hi_IN", ".", ",", true},
                                           Written{"ar_EG", ".", "\u066C"},
                                           Written{"fa_IR", ".", "\u066C"},
                                           Written{"sv_SE", ",", "\u00A0"}, Written{"C", ".", ","}),
                         [](const auto& test) { return std::string(test.param.locale); });

}  // namespace

}  // namespace tarvix
