#include "values/PathText.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarnwick::testing {
namespace {

struct PathCase {
    const char* path;
    const char* last;
    const char* folder;
    const char* extension;
    const char* name;
};

void PrintTo(const PathCase& path, std::ostream* stream) {
    *stream << ::testing::PrintToString(std::string(path.path));
}

class PathTextTest : public ::testing::TestWithParam<PathCase> {};

TEST_P(PathTextTest, IsTakenApart) {
    const auto& expected = GetParam();
    EXPECT_EQ(lastPathComponent(expected.path), expected.last);
    EXPECT_EQ(withoutLastPathComponent(expected.path), expected.folder);
    EXPECT_EQ(pathExtension(expected.path), expected.extension);
    EXPECT_EQ(lastComponentWithoutExtension(expected.path), expected.name);
}

INSTANTIATE_TEST_SUITE_P(Every, PathTextTest,
    ::testing::Values(PathCase{"/a/b.txt", "b.txt", "/a", "txt", "b"},
        PathCase{"/a/Archive.tar.gz", "Archive.tar.gz", "/a", "gz", "Archive.tar"},
        PathCase{"/a/Makefile", "Makefile", "/a", "", "Makefile"},
        PathCase{"/a/.profile", ".profile", "/a", "", ".profile"}, PathCase{"/a/b.", "b.", "/a", "", "b."},
        PathCase{"/a/b/", "b", "/a", "", "b"}, PathCase{"/a", "a", "/", "", "a"},
        PathCase{"/", "/", "/", "", "/"}, PathCase{"name.md", "name.md", "", "md", "name"},
        PathCase{"", "", "", "", ""}));

} // namespace
} // namespace tarnwick::testing
