// A file of a hundred thousand lines, clean or faulty from top to bottom, takes less than a second of processor time.
#include <gtest/gtest.h>

#include <ctime>

#include "tests/check/CheckSupport.hpp"

#if defined(__SANITIZE_ADDRESS__)
#define ZEB_IS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEB_IS_SANITIZED 1
#endif
#endif

namespace {

constexpr int kLines = 100'000;
#ifdef ZEB_IS_SANITIZED
constexpr double kSeconds = 10.0;
#else
constexpr double kSeconds = 1.0;
#endif

struct LongFile {
  const char* name;
  const char* first;
  std::string line;  // again and again
  const char* last;
};

void PrintTo(const LongFile& file, std::ostream* out) { *out << file.name; }

class LongFiles : public testing::TestWithParam<LongFile> {};

TEST_P(LongFiles, TakeLessThanASecond) {
  std::string content = GetParam().first;
  for (int i = 0; i < kLines; ++i) content += GetParam().line;
  const zebtest::TemporaryFile file(content + GetParam().last);
  zeb::DiagnosticList found;
  const std::clock_t before = std::clock();
  zeb::checkFile(file.path(), zeb::FileKind::kCmp, {}, found);
  const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
  EXPECT_LT(seconds, kSeconds);
  EXPECT_LE(found.all().size(), static_cast<std::size_t>(4 * zeb::DiagnosticList::kMostPerRule));
}

INSTANTIATE_TEST_SUITE_P(
    Check, LongFiles,
    testing::Values(LongFile{"Comments", "[General]\n", "# nothing\n", "[/General]\n"},
                    LongFile{"RepeatedKeys", "[General]\n", "FixCompressionFaceCK = 1e5 = x\n", "[/General]\n"},
                    LongFile{"UnknownKeys", "[General]\n", "ModifiedCompressionFaceC = 1\n", "[/General]\n"},
                    LongFile{"GatedKeys", "[AutoVPCtrl]\n", "EstCavityPres = 2\n", "[/AutoVPCtrl]\n"},
                    LongFile{"KeysOutside", "", "TimeLimit = 2\n", ""},
                    LongFile{"UnknownSections", "", "[Generall]\n", ""},
                    LongFile{"Sections", "", "[Outlet]\nIsOutlet = 1\n[/Outlet]\n", ""},
                    LongFile{"Bytes", "", "\xFF\r\t\r\n", ""}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
