// The quick form of the validation, as a user runs it.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

using Json = nlohmann::json;

TEST(Validation, PassesInItsQuickFormAndSaysSoToOtherPrograms) {
    const std::filesystem::path folder = RECORD_FOLDER;
    const std::string command =
        std::string("'" ON_DISPLAY "' '" VALIDATION "' '" APP "' '") + folder.string() + "' --quick";
    EXPECT_EQ(std::system(command.c_str()), 0); // NOLINT(cert-env33-c): paths of the build, quoted

    const Json record = Json::parse(std::ifstream(folder / "validation-record.json"));
    EXPECT_EQ(record["conclusion"], "passed");
    EXPECT_EQ(record["quick"], true);
    for (const Json& check : record["checks"])
        EXPECT_EQ(check["result"], "passed") << check;
    // A requirement whose checks are all gone would pass unseen.
    for (const Json& requirement : record["requirements"])
        EXPECT_FALSE(requirement["checks"].empty()) << requirement;
    EXPECT_EQ(std::system(("tidy -e -q '" + (folder / "validation-record.htm").string() + "'").c_str()),
              0); // NOLINT(cert-env33-c)
    std::string start;
    std::getline(std::ifstream(folder / "validation-record.pdf"), start, '-');
    EXPECT_EQ(start, "%PDF");
}

} // namespace
