// The quick form of the validation, as a user runs it, and the proof of its second program.
#include "validation/record.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <string>

namespace orvane::validation {

namespace {

QByteArray BytesOf(const std::string& name) {
    QFile file(QString::fromStdString(std::string(RECORD_FOLDER) + "/" + name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Validation, PassesInItsQuickFormAndSaysSoToOtherPrograms) {
    const std::string command = "'" ON_DISPLAY "' '" VALIDATION "' '" APP "' '" RECORD_FOLDER "' --quick";
    EXPECT_EQ(std::system(command.c_str()), 0); // NOLINT(cert-env33-c): paths of the build, quoted

    const QJsonObject record = QJsonDocument::fromJson(BytesOf("validation-record.json")).object();
    EXPECT_EQ(record["conclusion"].toString(), "passed");
    EXPECT_TRUE(record["quick"].toBool());
    EXPECT_FALSE(record["checks"].toArray().isEmpty());
    for (const QJsonValue check : record["checks"].toArray())
        EXPECT_EQ(check["result"].toString(), "passed") << check["identifier"].toString().toStdString();
    EXPECT_TRUE(BytesOf("validation-record.pdf").startsWith("%PDF"));
    EXPECT_FALSE(BytesOf("SHA256SUMS").isEmpty());
}

TEST(SecondProgram, AgreesWithPublishedFigures) {
    Record record;
    CheckSecondProgram(record);
    ASSERT_EQ(record.Checks.size(), 1U);
    for (const std::string& fault : record.Checks.front().Faults)
        ADD_FAILURE() << fault;
}

} // namespace

} // namespace orvane::validation
