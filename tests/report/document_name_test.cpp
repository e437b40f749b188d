// What a report is called.
#include "report/page/document_name.h"

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

TEST(DocumentName, CarriesTheTagWhereThereIsOne) {
    EXPECT_EQ(DocumentName("FE-4102"), "Orifice calculation FE-4102");
    EXPECT_EQ(DocumentName("  FE 4102 "), "Orifice calculation FE 4102");
    EXPECT_EQ(DocumentName("FE\r\n4102\t/B"), "Orifice calculation FE 4102 /B");
    EXPECT_EQ(DocumentName(""), "Orifice calculation");
    EXPECT_EQ(DocumentName("   "), "Orifice calculation");
    EXPECT_EQ(DocumentName("xReflux"), "Orifice calculation xReflux");
}

TEST(DocumentName, LongTagIsCutBetweenTwoCharacters) {
    // 20 bytes are "Orifice calculation "; 180 are left: 60 of these characters of three bytes.
    std::string long3;
    for (int i = 0; i < 5000; ++i) {
        long3 += "\xE6\xB5\x81";
    }
    EXPECT_EQ(DocumentName(long3), "Orifice calculation " + long3.substr(0, 180));
    // With a letter in front the sixtieth no longer fits.
    EXPECT_EQ(DocumentName("x" + long3), "Orifice calculation x" + long3.substr(0, 177));
    // No blank is left at the end.
    EXPECT_EQ(DocumentName(std::string(179, 'y') + " y"),
              "Orifice calculation " + std::string(179, 'y'));
}

TEST(FileName, CharactersThatAFileCannotHoldAreHyphens) {
    EXPECT_EQ(FileNameOf("Orifice calculation FE-4102"), "Orifice calculation FE-4102");
    EXPECT_EQ(FileNameOf("a/b\\c:d*e?f\"g<h>i|j"), "a-b-c-d-e-f-g-h-i-j");
    EXPECT_EQ(FileNameOf("Ma\xC3\x9F 7x"), "Ma\xC3\x9F 7x");
}

TEST(FileName, EndsInNoDotOrBlank) {
    EXPECT_EQ(FileNameOf("Orifice calculation No. 7 . ."), "Orifice calculation No. 7");
    EXPECT_EQ(FileNameOf("../../etc"), "-..-etc");
}

}  // namespace
}  // namespace tarvix::testing
