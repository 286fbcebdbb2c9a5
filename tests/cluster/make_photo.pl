# SPDX-License-Identifier: MIT
# make_photo.pl WIDTH HEIGHT: an uncompressed TIFF file of a gradient with noise, on stdout.
use strict;
use warnings;

my ($width, $height) = @ARGV;
binmode STDOUT;
srand 1;
my $rowBytes = 3 * $width;
my $noise = join '', map { chr int rand 32 } 1 .. 2 * $rowBytes;
my @entries = (
    [256, 4, 1, $width], [257, 4, 1, $height], [258, 3, 1, 8], [259, 3, 1, 1], [262, 3, 1, 2],
    [273, 4, 1, 8], [277, 3, 1, 3], [278, 4, 1, $height], [279, 4, 1, $rowBytes * $height]);
my $bits = 8 + $rowBytes * $height;
$entries[2] = [258, 3, 3, $bits];
print pack 'a2vV', 'II', 42, $bits + 6;
my $gradient = join '', map { my $x = int 190 * $_ / $width; chr($x) . chr(200 - $x) . chr(90) } 0 .. $width - 1;
for my $y (0 .. $height - 1) {
    my $shade = chr(int 31 * $y / $height) x $rowBytes;
    my $grain = substr $noise, $y * 7919 % $rowBytes, $rowBytes;
    print $gradient ^ $shade ^ $grain;
}
print pack 'vvv', 8, 8, 8;
print pack 'v', scalar @entries;
print pack 'vvVV', @$_ for @entries;
print pack 'V', 0;
