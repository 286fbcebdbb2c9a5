// SPDX-License-Identifier: GPL-2.0-or-later
// Puts every odd value into every number of a preset, in a catalogue and among the user's own: it
// costs at most the preset or the slider that it stands in.
#include "core/PresetModel.h"
#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"
#include "host/drawer/DrawnPicture.h"
#include "image/Image.h"
#include "workspace/WorkspaceController.h"

#include "Settings/SliderSetting.h"
#include "Settings/TuneSettingType.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace LumetraPlugin;
using LumetraHost::CatalogueReport;
using LumetraHost::Image;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;

namespace {

/// The presets between two good ones; "@NAME@" marks stand before the numbers that a case replaces.
constexpr char Presets[] = R"(
 {"name": "First", "id": "first", "intensity": {"type": 1, "blendSetting": {"value": 80}},
  "effects": [{"effect": {"id": "exposure", "stops": 1}}]},
 {"name": "Blending", "id": "blending", "previewCropPolicy": @crop@1, "previewFitPolicy": @fit@0,
  "intensity": {"type": @blendingType@1,
    "blendSetting": {"value": @value@80, "begin": @begin@1, "end": @end@255}},
  "effects": [{"effect": {"id": "contrast", "amount": 40}}]},
 {"name": "Sliding", "id": "sliding", "intensity": {"type": @slidingType@2,
    "sliderSetting": {"title": "Colour", "begin": @low@0, "end": @high@50, "variables": [
     {"effectID": "saturation", "setting": "amount", "begin": @from@0, "end": @to@-100},
     {"effectID": "contrast", "setting": "amount", "begin": @from2@0, "end": @to2@30}]}},
  "effects": [{"effect": {"id": "saturation", "amount": @amount@-50}},
              {"effect": {"id": "contrast", "amount": @amount2@15}}]},
 {"name": "Extra", "id": "extra", "effects": [{"effect": {"id": "exposure", "stops": @stops@1}}]},
 {"name": "Last", "id": "last", "effects": [{"effect": {"id": "saturation", "amount": -100}}]})";

constexpr char Sliders[] = R"({"exposure": {"title": "Exposure", "begin": @sliderLow@-100,
 "end": @sliderHigh@100, "variables": [{"setting": "stops", "begin": @sliderFrom@-2,
 "end": @sliderTo@2}]}})";

const QList<QByteArray> OddValues{
    "0",    "1",          "2",          "50",          "80",   "100",   "101",    "255",
    "256",  "300",        "-1",         "-50",         "-100", "-101",  "0.5",    "99.5",
    "1000", "2147483647", "2147483648", "-2147483648", "3e9",  "1e300", "-1e300", "1e-300",
    "true", "null",       "\"80\"",     "[]",          "{}"};

/// Pairs of marks whose values are odd only together: swapped, equal, close by.
struct Pair
{
    const char* first;
    const char* firstValue;
    const char* second;
    const char* secondValue;
};
constexpr Pair OddPairs[] = {
    {"begin", "255", "end", "1"},
    {"begin", "80", "end", "80"},
    {"begin", "100", "end", "110"},
    {"begin", "300", "end", "400"},
    {"begin", "-300", "end", "-400"},
    {"value", "1", "end", "1"},
    {"value", "300", "begin", "255"},
    {"low", "50", "high", "0"},
    {"low", "20", "high", "20"},
    {"low", "-2147483648", "high", "2147483647"},
    {"low", "-1e300", "high", "1e300"},
    {"from", "-100", "to", "0"},
    {"from", "-50", "to", "-50"},
    {"sliderLow", "100", "sliderHigh", "-100"},
    {"sliderLow", "-1e300", "sliderHigh", "1e300"},
    {"sliderFrom", "1", "sliderTo", "1"},
};

QByteArray WithValue(QByteArray text, const QByteArray& mark, const QByteArray& value)
{
    const QByteArray token = '@' + mark + '@';
    const int begin = text.indexOf(token);
    if (begin < 0)
        return text;
    int end = begin + token.size();
    while (text[end] != ',' && text[end] != '}')
        ++end;
    return text.replace(begin, end - begin, value);
}

QByteArray WithoutMarks(const QByteArray& text)
{
    return QString::fromUtf8(text).remove(QRegularExpression(QStringLiteral("@\\w+@"))).toUtf8();
}

QList<QByteArray> MarkNames()
{
    QList<QByteArray> names;
    auto matches = QRegularExpression(QStringLiteral("@(\\w+)@"))
                       .globalMatch(QString::fromLatin1(Sliders) + QString::fromLatin1(Presets));
    while (matches.hasNext())
        names.append(matches.next().captured(1).toLatin1());
    return names;
}

struct Case
{
    std::string name;
    QByteArray sliders = Sliders;
    QByteArray presets = Presets;

    Case& Set(const QByteArray& mark, const QByteArray& value)
    {
        name += (mark + '=' + value + ' ').toStdString();
        sliders = WithValue(sliders, mark, value);
        presets = WithValue(presets, mark, value);
        return *this;
    }
};

std::vector<Case> MakeCases()
{
    std::vector<Case> cases;
    for (const QByteArray& mark : MarkNames())
        for (const QByteArray& value : OddValues)
            cases.push_back(Case().Set(mark, value));
    for (const Pair& pair : OddPairs)
        cases.push_back(Case().Set(pair.first, pair.firstValue).Set(pair.second, pair.secondValue));
    return cases;
}

QByteArray MakeCatalogue(const Case& given, const QByteArray& items)
{
    return WithoutMarks("{\"format\": \"lumetra-catalogue\", \"version\": 1,\n"
                        "\"defaultSettings\": " +
                        given.sliders + ",\n\"groups\": [{\"name\": \"Looks\", \"items\": [" +
                        items + "]}]}");
}

QByteArray MakeStore(const QByteArray& items)
{
    return WithoutMarks("{\"format\": \"lumetra-user-presets\", \"version\": 1, \"UserPresets\": "
                        "{\"items\": [" +
                        items + "]}}");
}

Image MakePhoto()
{
    Image image = Image::Allocate(8, 8, Image::Depth::Bits8);
    for (int y = 0; y < 8; ++y)
        for (int i = 0; i < 32; ++i)
            image.Row(y)[i] = static_cast<std::uint8_t>(i % 4 == 3 ? 255 : 30 + 3 * i + 9 * y);
    return image;
}

class SingleValueTest : public testing::Test
{
protected:
    QString WriteFile(const char* name, const QByteArray& content) const
    {
        QFile file(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    /// A session with the case in its catalogue, and no preset of the user's.
    std::unique_ptr<PresetSession> LoadInCatalogue(const Case& given) const
    {
        return Load(MakeCatalogue(given, given.presets), MakeStore({}));
    }

    /// A session with the case's presets among the user's, and its sliders in the catalogue.
    std::unique_ptr<PresetSession> LoadInStore(const Case& given) const
    {
        return Load(MakeCatalogue(given, R"({"name": "Only", "id": "only"})"),
                    MakeStore(given.presets));
    }

    std::unique_ptr<PresetSession> Load(const QByteArray& catalogue, const QByteArray& store) const
    {
        auto session = std::make_unique<PresetSession>(PresetSession::PackageName);
        QStringList problems;
        session->LoadWithStore({WriteFile("looks.json", catalogue)},
                               WriteFile("presets.json", store), problems);
        return session;
    }

    QTemporaryDir folder;
};

/// The picture that `session` draws with the preset `id`; a null image without such a preset.
Image Draw(PresetSession& session, const char* id)
{
    PresetModel& model = session.GetModel();
    const QModelIndex preset = model.FindId(QLatin1String(id));
    if (!preset.isValid())
        return {};
    model.setData(preset, true, PresetModel::AppliedRole);
    const Image result = LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer());
    session.DiscardChanges();
    return result;
}

/// Does all that a panel and the tool do with a preset.
void UsePreset(PresetSession& session, const QModelIndex& preset)
{
    PresetModel& model = session.GetModel();
    EXPECT_FALSE(preset.data(PresetModel::PreviewImageRole).value<QImage>().isNull());
    const int start = preset.data(PresetModel::IntensityRole).toInt();
    const int minimum = preset.data(PresetModel::IntensityMinRole).toInt();
    const int maximum = preset.data(PresetModel::IntensityMaxRole).toInt();
    EXPECT_GE(start, std::min(minimum, maximum));
    EXPECT_LE(start, std::max(minimum, maximum));

    model.setData(preset, true, PresetModel::AppliedRole);
    for (const int value : {minimum, maximum, start})
        model.setData(preset, value, PresetModel::IntensityRole);
    model.setData(preset, maximum, PresetModel::IntensityRole);
    model.setData(preset, QVariant::fromValue(TuneSettingType::ChangeEnd), PresetModel::TuneRole);
    auto sliders = preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
    for (SliderSetting& slider : sliders)
        slider.SetValue(slider.Max());
    model.setData(preset, QVariant::fromValue(sliders), PresetModel::SettingsValuesRole);
    EXPECT_FALSE(LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer()).IsNull());
    session.DiscardChanges();
    EXPECT_EQ(preset.data(PresetModel::IntensityRole).toInt(), start);
}

void UseAll(PresetSession& session)
{
    PresetModel& model = session.GetModel();
    session.ClosePhoto();
    session.OpenPhoto(MakePhoto());
    for (int g = 0; g < model.rowCount(); ++g)
        for (int i = 0; i < model.rowCount(model.index(g, 0)); ++i)
            UsePreset(session, model.index(i, 0, model.index(g, 0)));
    session.OpenPhoto(MakePhoto());
}

/// Expects the good presets to be there, to draw as always, and to be copied.
void ExpectTheOthersWork(PresetSession& session)
{
    PresetModel& model = session.GetModel();
    UseAll(session);
    const Image first = Draw(session, "first");
    const Image last = Draw(session, "last");
    EXPECT_FALSE(first.IsNull() || last.IsNull());
    EXPECT_FALSE(HaveSamePixels(first, MakePhoto()));
    EXPECT_EQ(last.Row(3)[8], last.Row(3)[9]);

    const QStringList before = model.GetUserPresetNames();
    model.setData(model.FindId(QStringLiteral("first")), QStringLiteral("New"),
                  PresetModel::SaveAsUserPresetRole);
    EXPECT_EQ(model.GetUserPresetNames(), before + QStringList{QStringLiteral("New")});
}

} // namespace

TEST_F(SingleValueTest, costsOnlyItselfInACatalogue)
{
    const auto cases = MakeCases();
    ASSERT_GT(cases.size(), 500U);
    for (const Case& given : cases) {
        SCOPED_TRACE(given.name);
        try {
            ExpectTheOthersWork(*LoadInCatalogue(given));
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

TEST_F(SingleValueTest, costsOnlyItselfAmongTheUsersPresets)
{
    for (const Case& given : MakeCases()) {
        SCOPED_TRACE(given.name);
        try {
            const auto session = LoadInStore(given);
            ExpectTheOthersWork(*session);
            session->GetStore()->Save(session->GetModel());
            QStringList problems;
            PresetSession again(PresetSession::PackageName);
            again.LoadWithStore({}, folder.filePath(QStringLiteral("presets.json")), problems);
            EXPECT_TRUE(again.GetModel().GetUserPresetNames().contains(QStringLiteral("New")));
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

TEST_F(SingleValueTest, isWarnedOfWhereTheIntensityIsOutOfItsRange)
{
    for (const char* mark : {"value", "begin", "end"})
        for (const char* value : {"0", "-1", "256", "300", "2147483647"}) {
            const auto session = LoadInCatalogue(Case().Set(mark, value));
            const auto& reports = session->GetReports();
            const auto found =
                std::find_if(reports.begin(), reports.end(), [&](const CatalogueReport& report) {
                    return report.severity == CatalogueReport::Severity::Warning &&
                           report.path ==
                               std::string("groups[0]/items[1]/intensity/blendSetting/") + mark;
                });
            ASSERT_NE(found, reports.end()) << mark << '=' << value;
            EXPECT_GT(found->place.line, 1U);
        }
}

TEST_F(SingleValueTest, isWarnedOfAmongTheUsersPresetsToo)
{
    const auto getProblems = [this](const char* mark, const char* value) {
        QStringList problems;
        PresetSession session(PresetSession::PackageName);
        const Case given = Case().Set(mark, value);
        session.LoadWithStore({}, WriteFile("presets.json", MakeStore(given.presets)), problems);
        return problems;
    };
    EXPECT_EQ(getProblems("value", "80"), QStringList());
    for (const auto& [mark, value, text] :
         {std::make_tuple("value", "300",
                          "expected an intensity from 1 to 100, found 300: it starts "
                          "at 100"),
          std::make_tuple("amount", "100",
                          "expected an intensity from 0 to 50, found -50: it starts "
                          "at 0")}) {
        const QStringList problems = getProblems(mark, value);
        ASSERT_EQ(problems.size(), 1) << mark;
        EXPECT_TRUE(problems[0].contains(QRegularExpression(
            QStringLiteral("presets\\.json:\\d+:\\d+: UserPresets/items\\[\\d\\]/intensity: %1$")
                .arg(QLatin1String(text)))))
            << problems[0].toStdString();
    }
}

TEST_F(SingleValueTest, startsAtTheNearestEndOfItsIntensity)
{
    const auto getIntensity = [this](const char* mark, const char* value, const char* id) {
        return LoadInCatalogue(Case().Set(mark, value))
            ->GetModel()
            .FindId(QLatin1String(id))
            .data(PresetModel::IntensityRole)
            .toInt();
    };
    EXPECT_EQ(getIntensity("value", "300", "blending"), 100);
    EXPECT_EQ(getIntensity("value", "-300", "blending"), 1);
    EXPECT_EQ(getIntensity("amount", "100", "sliding"), 0);
    EXPECT_EQ(getIntensity("to", "-25", "sliding"), 50);
}
