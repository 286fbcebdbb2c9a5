// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/MetadataFilter.h"

#include "host/photo/metadata/MetadataSamples.h"

#include "photo/metadata/ExtendedXmp.h"

#include <gmock/gmock.h>

using namespace LumetraHost;
using namespace LumetraTest;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::UnorderedElementsAre;

namespace {

PhotoMetadata Filter(const PhotoMetadata& metadata, KeptMetadata kept)
{
    Warnings warnings;
    const PhotoMetadata filtered = MetadataFilter::Apply(metadata, kept, warnings);
    EXPECT_THAT(warnings, IsEmpty());
    return filtered;
}

TEST(MetadataFilter, takesEveryCoordinateOutOfExif)
{
    const auto tags = DescribeExif(Filter(MakeBlocks(), KeptMetadata::NoGps).exif);

    EXPECT_THAT(tags, AllOf(Contains(Key("Exif.Image.Make")), Contains(Key("Exif.Image.Artist")),
                            Contains(Key("Exif.Photo.DateTimeOriginal"))));
    for (const auto& [key, value] : tags)
        EXPECT_THAT(key, Not(HasSubstr("GPS")));
}

TEST(MetadataFilter, takesCoordinatesOfAllNamespacesOutOfXmpAndOutOfItsStructures)
{
    const auto properties = DescribeXmp(Filter(MakeBlocks(), KeptMetadata::NoGps).xmp);

    for (const auto& [key, value] : properties) {
        EXPECT_THAT(key, Not(HasSubstr("GPS")));
        EXPECT_THAT(key, Not(HasSubstr("Gps")));
    }
    EXPECT_THAT(properties,
                AllOf(Contains(Key("Xmp.dc.title")), Contains(Key("Xmp.photoshop.City")),
                      Contains(Key("Xmp.iptcExt.LocationCreated[1]/Iptc4xmpExt:City"))));
}

TEST(MetadataFilter, leavesIptcAloneWhenOnlyCoordinatesGo)
{
    const PhotoMetadata blocks = MakeBlocks();

    EXPECT_EQ(Filter(blocks, KeptMetadata::NoGps).iptc, blocks.iptc);
}

TEST(MetadataFilter, leavesBlocksWithoutCoordinatesByteForByte)
{
    PhotoMetadata blocks;
    blocks.xmp = MakeXmp("xmp:Rating='4'");

    EXPECT_EQ(Filter(blocks, KeptMetadata::NoGps).xmp, blocks.xmp);
}

TEST(MetadataFilter, keepsAuthorCopyrightAndLicenceAlone)
{
    const PhotoMetadata kept = Filter(MakeBlocks(), KeptMetadata::Copyright);

    EXPECT_THAT(DescribeExif(kept.exif),
                UnorderedElementsAre(Key("Exif.Image.Artist"), Key("Exif.Image.Copyright")));
    EXPECT_THAT(DescribeXmp(kept.xmp),
                UnorderedElementsAre(Key("Xmp.dc.creator"), Key("Xmp.dc.rights"),
                                     Key("Xmp.photoshop.Credit"), Key("Xmp.xmpRights.WebStatement"),
                                     Key("Xmp.xmpRights.UsageTerms")));
    EXPECT_THAT(DescribeIptc(kept.iptc), UnorderedElementsAre(Key("Iptc.Envelope.CharacterSet"),
                                                              Key("Iptc.Application2.Byline"),
                                                              Key("Iptc.Application2.Copyright"),
                                                              Key("Iptc.Application2.Credit")));
}

TEST(MetadataFilter, leavesNoBlockWhereNothingIsKept)
{
    PhotoMetadata blocks = MakeBlocks();
    blocks.iccProfile = "profile";

    const PhotoMetadata none = Filter(blocks, KeptMetadata::None);

    EXPECT_EQ((none.exif + none.xmp + none.xmpExtension + none.iptc).size(), 0);
    EXPECT_EQ(none.iccProfile, "profile");
}

TEST(MetadataFilter, leavesNoIptcBlockOfACharacterSetAlone)
{
    PhotoMetadata blocks;
    blocks.iptc =
        MakeIptc({{"Iptc.Envelope.CharacterSet", "\x1b%G"}, {"Iptc.Application2.City", "Munich"}});

    EXPECT_EQ(Filter(blocks, KeptMetadata::Copyright).iptc.size(), 0);
}

TEST(MetadataFilter, leavesOutAPacketThatItCannotLookInto)
{
    PhotoMetadata blocks;
    blocks.xmp = MakeOddXmp();
    for (const auto kept : {KeptMetadata::NoGps, KeptMetadata::Copyright}) {
        Warnings warnings;

        EXPECT_EQ(MetadataFilter::Apply(blocks, kept, warnings).xmp.size(), 0);
        EXPECT_THAT(warnings, ElementsAre(HasSubstr("the XMP data cannot be looked into and are "
                                                    "left out")));
    }
}

TEST(MetadataFilter, findsCoordinatesInTheExtensionOfAPacket)
{
    PhotoMetadata blocks;
    blocks.xmp = MakeXmp("xmp:Rating='4' my:GPSLatitude='48'",
                         "<my:Text>" + MakeText(ExtendedXmp::LargestMain) + "</my:Text>");
    const ExtendedXmp divided = ExtendedXmp::Divide(blocks.xmp);
    blocks.xmp = divided.main;
    blocks.xmpExtension = divided.extension;
    ASSERT_FALSE(blocks.xmpExtension.isEmpty());

    const auto kept = Filter(blocks, KeptMetadata::NoGps);

    EXPECT_EQ(kept.xmpExtension.size(), 0);
    EXPECT_THAT(kept.xmp.toStdString(), AllOf(HasSubstr("Rating"), Not(HasSubstr("GPS"))));
}

} // namespace
