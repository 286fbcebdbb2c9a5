/* SPDX-License-Identifier: GPL-2.0-or-later */
/* vips_chain IN OUT GAIN MATRIX EXPONENT FACTOR MATRIX: the colour effects of the export benchmark as
   a libvips pipeline, for comparison. Matrices are nine numbers with commas between them. */
#include <stdlib.h>
#include <string.h>

#include <vips/vips.h>

static VipsImage *make_matrix(const char *text)
{
    double numbers[9];
    char *copy = strdup(text);
    char *word = strtok(copy, ",");
    for (int i = 0; i < 9; ++i) {
        numbers[i] = word ? g_ascii_strtod(word, NULL) : 0;
        word = strtok(NULL, ",");
    }
    free(copy);
    return vips_image_new_matrix_from_array(3, 3, numbers, 9);
}

static int run(char **words)
{
    const double gain = g_ascii_strtod(words[3], NULL);
    const double exponent = g_ascii_strtod(words[5], NULL);
    const double factor = g_ascii_strtod(words[6], NULL);
    double slope[3] = {1.05, 1, 1};
    double offset[3] = {0, 0, 0.02 * 255};
    double power[3] = {1, 0.95, 1};
    double down[3] = {1 / 255.0, 1 / 255.0, 1 / 255.0};
    double up[3] = {255, 255, 255};
    double none[3] = {0, 0, 0};
    VipsImage *step[12] = {NULL};
    VipsImage *balance = make_matrix(words[4]);
    VipsImage *saturation = make_matrix(words[7]);
    return !(step[0] = vips_image_new_from_file(words[1], "access", VIPS_ACCESS_SEQUENTIAL, NULL)) ||
           vips_colourspace(step[0], &step[1], VIPS_INTERPRETATION_scRGB, NULL) ||
           vips_linear1(step[1], &step[2], gain, 0, NULL) ||
           vips_recomb(step[2], &step[3], balance, NULL) ||
           vips_math2_const1(step[3], &step[4], VIPS_OPERATION_MATH2_POW, exponent, NULL) ||
           vips_linear1(step[4], &step[5], factor, 0, NULL) ||
           vips_colourspace(step[5], &step[6], VIPS_INTERPRETATION_sRGB, NULL) ||
           vips_recomb(step[6], &step[7], saturation, NULL) ||
           vips_linear(step[7], &step[8], slope, offset, 3, NULL) ||
           vips_linear(step[8], &step[9], down, none, 3, NULL) ||
           vips_math2_const(step[9], &step[10], VIPS_OPERATION_MATH2_POW, power, 3, NULL) ||
           vips_linear(step[10], &step[11], up, none, 3, NULL) ||
           vips_jpegsave(step[11], words[2], "Q", 92, "subsample_mode",
                         VIPS_FOREIGN_SUBSAMPLE_OFF, NULL);
}

int main(int count, char **words)
{
    if (count != 8 || VIPS_INIT(words[0]))
        return 2;
    if (run(words)) {
        fprintf(stderr, "%s", vips_error_buffer());
        return 1;
    }
    vips_shutdown();
    return 0;
}
