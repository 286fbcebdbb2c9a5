// SPDX-License-Identifier: GPL-2.0-or-later
#include "VipsPipeline.h"

#include <stdexcept>
#include <string>

namespace LumetraBench {
namespace {

[[noreturn]] void Fail()
{
    throw std::runtime_error(std::string("libvips: ") + vips_error_buffer());
}

VipsImage* Check(VipsImage* image)
{
    return image ? image : (Fail(), nullptr);
}

} // namespace

VipsPipeline::VipsPipeline(const std::vector<std::uint8_t>& bytes, int width, int height)
{
    m_last = Keep(Check(vips_image_new_from_memory(bytes.data(), bytes.size(), width, height, 3,
                                                   VIPS_FORMAT_UCHAR)));
    m_last->Type = VIPS_INTERPRETATION_sRGB;
}

VipsPipeline::~VipsPipeline()
{
    for (VipsImage* const image : m_images)
        g_object_unref(image);
}

void VipsPipeline::ToLinear()
{
    Add([](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_scRGB, nullptr);
    });
}

void VipsPipeline::ToEncoded()
{
    Add([](VipsImage* in, VipsImage** out) {
        return vips_colourspace(in, out, VIPS_INTERPRETATION_sRGB, nullptr);
    });
}

void VipsPipeline::Multiply(const LumetraHost::ColourMatrix& matrix)
{
    double numbers[9];
    for (std::size_t i = 0; i < 9; ++i)
        numbers[i] = matrix.rows[i / 3][i % 3];
    VipsImage* const image = Keep(Check(vips_image_new_matrix_from_array(3, 3, numbers, 9)));
    Add([image](VipsImage* in, VipsImage** out) { return vips_recomb(in, out, image, nullptr); });
}

void VipsPipeline::Scale(double factor)
{
    Add([factor](VipsImage* in, VipsImage** out) {
        return vips_linear1(in, out, factor, 0, nullptr);
    });
}

void VipsPipeline::Scale(std::array<double, 3> slope, std::array<double, 3> offset)
{
    Add([&](VipsImage* in, VipsImage** out) {
        return vips_linear(in, out, slope.data(), offset.data(), 3, nullptr);
    });
}

void VipsPipeline::Power(std::array<double, 3> exponent)
{
    Add([&](VipsImage* in, VipsImage** out) {
        return vips_math2_const(in, out, VIPS_OPERATION_MATH2_POW, exponent.data(), 3, nullptr);
    });
}

void VipsPipeline::Round(double factor)
{
    Add([factor](VipsImage* in, VipsImage** out) {
        return vips_linear1(in, out, factor, 0.5, "uchar", TRUE, nullptr);
    });
}

void VipsPipeline::LookUp(const std::vector<std::uint8_t>& table)
{
    VipsImage* const image = Keep(Check(
        vips_image_new_from_memory_copy(table.data(), table.size(), 256, 1, 3, VIPS_FORMAT_UCHAR)));
    Add([image](VipsImage* in, VipsImage** out) { return vips_maplut(in, out, image, nullptr); });
}

void VipsPipeline::Blur(double sigma)
{
    // The default leaves out weights below a fifth of the centre's.
    constexpr double smallest = 0.02;
    Add([sigma](VipsImage* in, VipsImage** out) {
        return vips_gaussblur(in, out, sigma, "min_ampl", smallest, nullptr);
    });
}

void VipsPipeline::Sharpen(double sigma, double amount)
{
    constexpr double unlimited = 100;
    Add([sigma, amount](VipsImage* in, VipsImage** out) {
        return vips_sharpen(in, out, "sigma", sigma, "m1", amount, "m2", amount, "y2", unlimited,
                            "y3", unlimited, nullptr);
    });
}

std::shared_ptr<const std::uint8_t> VipsPipeline::ToBytes()
{
    std::size_t size = 0;
    void* const bytes = vips_image_write_to_memory(m_last, &size);
    if (!bytes)
        Fail();
    return {static_cast<const std::uint8_t*>(bytes),
            [](const std::uint8_t* memory) { g_free(const_cast<std::uint8_t*>(memory)); }};
}

void VipsPipeline::Add(const std::function<int(VipsImage*, VipsImage**)>& step)
{
    VipsImage* out = nullptr;
    if (step(m_last, &out) != 0)
        Fail();
    m_last = Keep(out);
}

VipsImage* VipsPipeline::Keep(VipsImage* image)
{
    m_images.push_back(image);
    return image;
}

} // namespace LumetraBench
