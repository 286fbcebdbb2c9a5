// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include <QDir>

using testing::HasSubstr;
using testing::Not;

namespace {

QString Mine()
{
    return QStringLiteral("Mine");
}

/// The command with the store of the test's own folder.
QStringList WithStore(QStringList arguments)
{
    return arguments << QStringLiteral("--store") << QStringLiteral("presets.json");
}

} // namespace

TEST_F(CliTest, keepsASavedPresetForTheNextStart)
{
    const CliResult saved =
        Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Bright"), Mine(),
                       QStringLiteral("--intensity"), QStringLiteral("33"), QStringLiteral("--set"),
                       QStringLiteral("exposure=20")}));
    EXPECT_EQ(saved.code, 0) << saved.messages;
    EXPECT_EQ(saved.output, "saved \"Mine\" from \"Test Bright\"\n");

    const CliResult listed = Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")}));
    EXPECT_THAT(listed.output, HasSubstr("User presets\n  Mine  [{"));
    EXPECT_THAT(listed.output, HasSubstr("intensity 33 (1 to 100), blending\n      exposure 20 "));
    EXPECT_THAT(listed.output, Not(HasSubstr("Test looks")));
}

TEST_F(CliTest, keepsASliderIntensityInTheEffectsOfASavedPreset)
{
    EXPECT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Slide"), Mine(),
                             QStringLiteral("--intensity"), QStringLiteral("40")}))
                  .code,
              0);
    EXPECT_THAT(Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")})).output,
                HasSubstr("intensity 40 (0 to 50), slider"));
}

TEST_F(CliTest, appliesASavedPreset)
{
    WritePhoto("photo.png");
    ASSERT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()})).code,
              0);
    const auto apply = [this](const QString& preset, const QString& output) {
        return Run(WithStore({QStringLiteral("apply"), QStringLiteral("photo.png"),
                              QStringLiteral("--preset"), preset, QStringLiteral("-o"), output,
                              QStringLiteral("--metadata"), QStringLiteral("none")}))
            .code;
    };
    EXPECT_EQ(apply(Mine(), QStringLiteral("mine.png")), 0);
    EXPECT_EQ(apply(QStringLiteral("Test Grey"), QStringLiteral("grey.png")), 0);
    EXPECT_EQ(ReadFile("mine.png"), ReadFile("grey.png"));
    EXPECT_NE(ReadFile("mine.png"), ReadFile("photo.png"));
}

TEST_F(CliTest, refusesANameThatIsTakenEmptyOrTooLong)
{
    ASSERT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()})).code,
              0);
    const QByteArray before = ReadFile("presets.json");
    for (const QString& name :
         {Mine(), QStringLiteral(" Mine "), QStringLiteral("  "), QString(51, QLatin1Char('x'))}) {
        const CliResult result =
            Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), name}));
        EXPECT_EQ(result.code, 2) << name.toStdString();
        EXPECT_THAT(result.messages, HasSubstr("NAME: expected"));
    }
    EXPECT_EQ(ReadFile("presets.json"), before);
}

TEST_F(CliTest, renamesAndRemovesOnlyTheUsersPresets)
{
    ASSERT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()})).code,
              0);
    EXPECT_EQ(Run(WithStore({QStringLiteral("rename"), Mine(), QStringLiteral("Neu")})).code, 0);
    for (const char* command : {"rename", "remove"}) {
        QStringList arguments{QString::fromLatin1(command), QStringLiteral("test.grey")};
        if (arguments[0] == QStringLiteral("rename"))
            arguments << QStringLiteral("X");
        const CliResult result = Run(WithStore(arguments));
        EXPECT_EQ(result.code, 2);
        EXPECT_THAT(result.messages, HasSubstr("expected one of your own presets"));
    }
    EXPECT_EQ(Run(WithStore({QStringLiteral("remove"), QStringLiteral("neu")})).code, 0);
    EXPECT_EQ(Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")})).output, "");
}

TEST_F(CliTest, removesSeveralPresetsAtOnceOrNone)
{
    for (const char* name : {"A", "B", "C"})
        ASSERT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"),
                                 QString::fromLatin1(name)}))
                      .code,
                  0);
    EXPECT_EQ(
        Run(WithStore({QStringLiteral("remove"), QStringLiteral("A"), QStringLiteral("Z")})).code,
        2);
    EXPECT_EQ(
        Run(WithStore({QStringLiteral("remove"), QStringLiteral("A"), QStringLiteral("C")})).code,
        0);
    const std::string left =
        Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")})).output;
    EXPECT_THAT(left, HasSubstr("  B  ["));
    EXPECT_THAT(left, Not(HasSubstr("  A  [")));
    EXPECT_THAT(left, Not(HasSubstr("  C  [")));
}

TEST_F(CliTest, marksFavouritesAndTakesMarksOff)
{
    const auto favourites = [this] {
        return Run(WithStore({QStringLiteral("list"), QStringLiteral("--favourites")})).output;
    };
    EXPECT_EQ(Run(WithStore({QStringLiteral("favourite"), QStringLiteral("Test Grey"),
                             QStringLiteral("test.bright")}))
                  .code,
              0);
    EXPECT_THAT(favourites(), HasSubstr("Test Grey"));
    EXPECT_THAT(favourites(), HasSubstr("Test Bright"));
    EXPECT_EQ(Run(WithStore({QStringLiteral("favourite"), QStringLiteral("Test Grey"),
                             QStringLiteral("--off")}))
                  .code,
              0);
    EXPECT_THAT(favourites(), Not(HasSubstr("Test Grey")));
    EXPECT_THAT(favourites(), HasSubstr("Test Bright"));
}

TEST_F(CliTest, saysWhereAStoreIsWrongAndGoesOn)
{
    WriteFile("presets.json", R"({"UserPresets": {"items": [
  {"name": "Good", "id": "good"},
  {"name": true}]}})");
    const CliResult result = Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")}));
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, HasSubstr("Good"));
    EXPECT_THAT(result.messages, HasSubstr("presets.json:3:12: "));
    EXPECT_THAT(result.messages, HasSubstr("expected string, found bool"));
}

TEST_F(CliTest, changesNothingWhenTheStoreIsOfANewerProgram)
{
    const QByteArray newer = R"({"format": "lumetra-user-presets", "version": 9})";
    WriteFile("presets.json", newer);
    const CliResult result =
        Run(WithStore({QStringLiteral("favourite"), QStringLiteral("Test Grey")}));
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("found a newer one; nothing was written"));
    EXPECT_EQ(ReadFile("presets.json"), newer);
}

namespace {

/// Every command that reads a store, with arguments that it accepts.
QList<QStringList> CommandsWithAStore()
{
    const QString grey = QStringLiteral("Test Grey");
    return {{QStringLiteral("list")},
            {QStringLiteral("apply"), QStringLiteral("photo.png"), QStringLiteral("--preset"), grey,
             QStringLiteral("-o"), QStringLiteral("out.png")},
            {QStringLiteral("sheet"), QStringLiteral("photo.png"), QStringLiteral("-o"),
             QStringLiteral("sheet.png")},
            {QStringLiteral("export-lut"), QStringLiteral("--preset"), grey, QStringLiteral("-o"),
             QStringLiteral("out.cube")},
            {QStringLiteral("save"), grey, Mine()},
            {QStringLiteral("rename"), grey, Mine()},
            {QStringLiteral("remove"), grey},
            {QStringLiteral("favourite"), grey}};
}

} // namespace

TEST_F(CliTest, leavesAloneWhateverIsNamedAsAStoreWithoutBeingOne)
{
    WritePhoto("photo.png");
    WriteFile("others.json", R"({"format": "lumetra-catalogue", "version": 1, "items": []})");
    WriteFile("notes.json", R"({"items": ["milk"]})");
    for (const char* store : {"photo.png", "others.json", "notes.json"}) {
        const QByteArray before = ReadFile(store);
        for (QStringList arguments : CommandsWithAStore()) {
            SCOPED_TRACE(arguments.join(QLatin1Char(' ')).toStdString() + " --store " + store);
            const CliResult result =
                Run(arguments << QStringLiteral("--store") << QString::fromLatin1(store));
            EXPECT_EQ(result.code, 1);
            EXPECT_THAT(result.messages, HasSubstr(store));
            EXPECT_THAT(result.messages, HasSubstr("expected a file of your own presets"));
            EXPECT_EQ(ReadFile(store), before);
        }
    }
    for (const char* made : {"out.png", "sheet.png", "out.cube", "photo.png.lock"})
        EXPECT_FALSE(Exists(made)) << made;
}

TEST_F(CliTest, savesToANewStoreAndReadsOneThatIsEmpty)
{
    WriteFile("presets.json", "");
    EXPECT_EQ(Run(WithStore({QStringLiteral("list")})).code, 0);
    EXPECT_EQ(ReadFile("presets.json"), "");
    EXPECT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()})).code,
              0);
    EXPECT_THAT(Run(WithStore({QStringLiteral("list"), QStringLiteral("--user")})).output,
                HasSubstr("Mine"));
}

TEST_F(CliTest, succeedsWithAWarningWhenOnlyTheBackupFails)
{
    for (int i = 1; i <= 5; ++i)
        ASSERT_TRUE(
            QDir(folder.path()).mkpath(QStringLiteral("presets.json.backup-%1/full").arg(i)));
    const CliResult saved =
        Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()}));
    EXPECT_EQ(saved.code, 0);
    EXPECT_EQ(saved.output, "saved \"Mine\" from \"Test Grey\"\n");
    EXPECT_THAT(saved.messages, HasSubstr("the presets were saved, but not a backup of them"));
}

TEST_F(CliTest, refusesANameOfTheCatalogueUnlessToldToKeepBoth)
{
    ASSERT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"), Mine()})).code,
              0);
    const QByteArray before = ReadFile("presets.json");
    for (const QStringList& command :
         {QStringList{QStringLiteral("save"), QStringLiteral("Test Grey"),
                      QStringLiteral("test bright")},
          QStringList{QStringLiteral("rename"), Mine(), QStringLiteral("test bright")}}) {
        const CliResult refused = Run(WithStore(command));
        EXPECT_EQ(refused.code, 2);
        EXPECT_THAT(
            refused.messages,
            HasSubstr("NAME: expected a new name, found \"test bright\", which a look of the "
                      "group \"Test looks\" has; --keep-both"));
        EXPECT_EQ(ReadFile("presets.json"), before);
    }
    EXPECT_EQ(Run(WithStore({QStringLiteral("rename"), Mine(), QStringLiteral("mine")})).code, 0)
        << "a look may have its own name in other letters";
    EXPECT_EQ(Run(WithStore({QStringLiteral("save"), QStringLiteral("Test Grey"),
                             QStringLiteral("Test Bright"), QStringLiteral("--keep-both")}))
                  .code,
              0);
}
