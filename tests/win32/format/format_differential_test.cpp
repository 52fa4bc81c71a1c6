// The portable en-US formatter against the system's (oleaut32 under Wine, en-US locale): every
// pair of the corpora must agree, except the listed differences of Wine, where each side must
// give the answer listed for it (Wine's is not checked where it is listed as unreliable).
#include "core/format/portable_formatter.h"
#include "platform/win32/com/ole_formatter.h"
#include "tests/win32/format/corpus.h"
#include <cstdio>
#include <gtest/gtest.h>

namespace tolva::test {
namespace {

// Wine's answer where it changes from run to run.
constexpr const char* Unreliable = "<unreliable>";

class FormatDifferential : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(GetUserDefaultLCID(), 0x0409u) << "the corpora are for the en-US locale";
        portable.FixToday(system.Today()); // dates without a year are in the same year
    }

    // Checks every case and reports the figures.
    template <typename Answer> void Check(const char* corpus, const std::vector<CorpusCase>& cases, Answer answer)
    {
        size_t agreed = 0, listed = 0;
        for (const CorpusCase& c : cases) {
            SCOPED_TRACE(std::string(corpus) + " line " + std::to_string(c.line) + ": " + ToUtf8(c.text));
            const std::string mine = answer(portable, c);
            const std::string systems = answer(system, c);
            if (c.wineDifference) {
                EXPECT_EQ(mine, c.wineDifference->windows);
                if (c.wineDifference->wine != Unreliable) {
                    EXPECT_EQ(systems, c.wineDifference->wine);
                }
                ++listed;
            } else {
                EXPECT_EQ(mine, systems);
                agreed += mine == systems;
            }
        }
        std::printf("%s: %zu cases, %zu agree, %zu listed Wine differences\n", corpus, cases.size(), agreed, listed);
    }

    PortableFormatter portable;
    win32::OleFormatter system;
};

TEST_F(FormatDifferential, FormatCorpus)
{
    const auto cases = ReadFormatCorpus(TOLVA_FORMAT_CORPUS_DIR "format_corpus.txt");
    ASSERT_GE(cases.size(), 500u);
    Check("format corpus", cases, [](Formatter& formatter, const CorpusCase& c) {
        return Outcome([&] { return formatter.Format(c.value, c.text); });
    });
}

TEST_F(FormatDifferential, ParseCorpus)
{
    const auto cases = ReadParseCorpus(TOLVA_FORMAT_CORPUS_DIR "parse_corpus.txt");
    Check("parse corpus", cases, [](Formatter& formatter, const CorpusCase& c) { return ParseOutcome(formatter, c.text); });
}

} // namespace
} // namespace tolva::test
