// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/EditRecord.h"

#include "Zorvik/Exception.h"

#include <gmock/gmock.h>

#include <future>
#include <vector>

using LumetraHost::EditRecord;
using LumetraHost::EditRecords;
using testing::HasSubstr;

TEST(EditRecords, areReadAsTheyWereWritten)
{
    const QByteArray packet = EditRecords::Add({},
                                               {{"Golden Hour", 80},
                                                {"\xc3\x9c"
                                                 "ber <all>",
                                                 0}},
                                               "Lumetra 1");

    const auto records = EditRecords::Read(packet);

    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].preset, "Golden Hour");
    EXPECT_EQ(records[0].intensity, 80);
    EXPECT_EQ(records[1].preset, "\xc3\x9c"
                                 "ber <all>");
    EXPECT_EQ(records[1].intensity, 0);
    EXPECT_THAT(packet.toStdString(), HasSubstr("Lumetra 1"));
}

TEST(EditRecords, followThoseOfEarlierExports)
{
    const QByteArray first = EditRecords::Add({}, {{"First", 10}}, "Lumetra");

    const auto records = EditRecords::Read(EditRecords::Add(first, {{"Second", 20}}, "Lumetra"));

    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].preset, "First");
    EXPECT_EQ(records[1].preset, "Second");
}

TEST(EditRecords, leaveOtherPropertiesAlone)
{
    const QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/">
<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
 xmlns:xmp="http://ns.adobe.com/xap/1.0/" xmp:Rating="4"/></rdf:RDF></x:xmpmeta>)";

    const QByteArray added = EditRecords::Add(packet, {{"Look", 50}}, "Lumetra");

    EXPECT_THAT(added.toStdString(), HasSubstr("xmp:Rating=\"4\""));
    EXPECT_TRUE(EditRecords::Read(packet).empty());
}

TEST(EditRecords, areReadHoweverManyAPictureHas)
{
    constexpr int Many = 20000; // with a search for each it would take an hour
    QByteArray list;
    for (int i = 0; i < Many; ++i)
        list += "<rdf:li rdf:parseType=\"Resource\"><lumetra:Name>L" + QByteArray::number(i) +
                "</lumetra:Name><lumetra:Intensity>80</lumetra:Intensity></rdf:li>";
    const QByteArray packet =
        R"(<x:xmpmeta xmlns:x="adobe:ns:meta/">
<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
 xmlns:lumetra="https://lumetra.org/ns/edit/1.0/"><lumetra:Presets><rdf:Seq>)" +
        list + "</rdf:Seq></lumetra:Presets></rdf:Description></rdf:RDF></x:xmpmeta>";

    const auto records = EditRecords::Read(packet);

    ASSERT_EQ(records.size(), static_cast<std::size_t>(Many));
    EXPECT_EQ(records.back().preset, "L19999");
    EXPECT_EQ(records.back().intensity, 80);
}

TEST(EditRecords, refuseADamagedPacket)
{
    EXPECT_THROW(EditRecords::Read("<x:xmpmeta"), Zorvik::Exception);
}

TEST(EditRecords, refuseAPacketWithATextThatTheLibraryTakesForAType)
{
    const QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/">
<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
 xmlns:lumetra="https://lumetra.org/ns/edit/1.0/"><lumetra:Presets><rdf:Seq>
<rdf:li rdf:parseType="Resource"><lumetra:Name>type=warm and soft</lumetra:Name></rdf:li>
</rdf:Seq></lumetra:Presets></rdf:Description></rdf:RDF></x:xmpmeta>)";
    EXPECT_THROW(EditRecords::Read(packet), Zorvik::Exception);
}

TEST(EditRecords, takeLooksAlongToTheByteAndSayWhereOneIsMissing)
{
    EditRecord whole{"Whole", 80};
    whole.look = "{\"a\": [1, \"<&>\", \"\\n  \xc3\x9c\"]}";
    EditRecord missing{"Missing", 100};
    missing.lookLeftOut = "too large";

    const auto records =
        EditRecords::Read(EditRecords::Add({}, {whole, missing, {"Old", 5}}, "Lumetra"));

    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].look, whole.look);
    EXPECT_EQ(records[0].intensity, 80);
    EXPECT_EQ(records[1].look, "");
    EXPECT_EQ(records[1].lookLeftOut, "too large");
    EXPECT_EQ(records[2].look + records[2].lookLeftOut, "");
}

TEST(EditRecords, areWrittenAndReadByManyThreadsAtOnce)
{
    constexpr int Threads = 4;
    constexpr int Rounds = 300;
    const auto work = [] {
        int failed = 0;
        for (int round = 0; round < Rounds; ++round) {
            try {
                const auto packet = EditRecords::Add({}, {{"Golden Hour", round}}, "Lumetra");
                failed += EditRecords::Read(packet).size() == 1 ? 0 : 1;
            } catch (const Zorvik::Exception&) {
                ++failed;
            }
        }
        return failed;
    };
    std::vector<std::future<int>> threads;
    for (int i = 0; i < Threads; ++i)
        threads.push_back(std::async(std::launch::async, work));

    for (auto& thread : threads)
        EXPECT_EQ(thread.get(), 0);
}

TEST(EditRecords, nameTheJobOfTheFileItselfAndOfNoEarlierOne)
{
    const QByteArray first = EditRecords::Add({}, {{"First", 10}}, "Lumetra", "abc1");
    const QByteArray second = EditRecords::Add(first, {{"Second", 20}}, "Lumetra", "abc2");
    const QByteArray third = EditRecords::Add(second, {{"Third", 30}}, "Lumetra");

    EXPECT_EQ(EditRecords::ReadJob({}), "");
    EXPECT_EQ(EditRecords::ReadJob(first), "abc1");
    EXPECT_EQ(EditRecords::ReadJob(second), "abc2");
    EXPECT_EQ(EditRecords::ReadJob(third), "");
    EXPECT_EQ(EditRecords::Read(third).size(), 3U);
    EXPECT_THROW(EditRecords::ReadJob("<x:xmpmeta"), Zorvik::Exception);
}
