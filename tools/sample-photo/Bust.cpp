// SPDX-License-Identifier: GPL-2.0-or-later
#include "Bust.h"

#include "Noise.h"
#include "Sdf.h"

namespace LumetraSample {

// Two frames, both with the face towards +z and y up: p has its origin at the base, and q = p -
// Head with x made positive, in the middle of the skull.

namespace {

const Vec3 Head{0.0f, 0.385f, 0.0f};

Vec3 HeadFrame(const Vec3& p)
{
    return {std::abs(p.x), p.y - Head.y, p.z - Head.z};
}

// The cap sits lower at the back than over the forehead.
Vec3 CapFrame(const Vec3& p)
{
    const Vec3 q = p - Head - Vec3{0.0f, 0.030f, -0.016f};
    constexpr float Tilt = 0.30f;
    return {q.x, std::cos(Tilt) * q.y - std::sin(Tilt) * q.z,
            std::sin(Tilt) * q.y + std::cos(Tilt) * q.z};
}

Vec3 ScarfFrame(const Vec3& p)
{
    const Vec3 q = p - Vec3{0.0f, 0.205f, -0.018f};
    return {q.x, q.y + 0.22f * q.z + 0.010f * std::sin(3.0f * q.x * 20.0f), q.z};
}

} // namespace

Bust::Bust(const Vec3& foot, float yaw)
    : m_foot(foot), m_cosine(std::cos(yaw)), m_sine(std::sin(yaw))
{
}

SceneObject::Bounds Bust::Box() const
{
    return {m_foot - Vec3{0.25f, 0.0f, 0.25f}, m_foot + Vec3{0.25f, 0.55f, 0.25f}};
}

float Bust::Distance(const Vec3& point) const
{
    const Vec3 p = Local(point);
    // A part far above or below is no nearer than the layer of space that it lies in.
    float nearest = 1.0f;
    const auto consider = [&](float low, float high, float (*part)(const Vec3&)) {
        const float gap = std::max(low - p.y, p.y - high);
        nearest = std::min(nearest, gap > 0.02f ? gap : part(p));
    };
    consider(0.13f, 0.50f, Skin);
    consider(0.36f, 0.55f, Cap);
    consider(0.03f, 0.30f, Scarf);
    consider(-0.01f, 0.25f, Jumper);
    return 0.85f * nearest;
}

Material Bust::MaterialAt(const Vec3& point, const Vec3& /*normal*/) const
{
    const Vec3 p = Local(point);
    switch (PartAt(p)) {
    case Part::Cap:
        return CapMaterial(p);
    case Part::Scarf:
        return ScarfMaterial(p);
    case Part::Jumper:
        return JumperMaterial(p);
    default:
        return SkinMaterial(p);
    }
}

float Bust::Relief(const Vec3& point) const
{
    const Vec3 p = Local(point);
    switch (PartAt(p)) {
    case Part::Cap: {
        const Vec3 q = CapFrame(p);
        const float rib = 68.0f * std::atan2(q.x, q.z) / (2.0f * Pi);
        const float row = q.y / 0.0042f;
        const float side = rib - std::floor(rib) - 0.5f;
        // Each stitch is a V: rows climb away from the middle of the rib.
        const float stitch = std::cos(2.0f * Pi * (row - 1.4f * std::abs(side)));
        return 0.0011f * std::cos(2.0f * Pi * side) + 0.0005f * stitch +
               0.0003f * Fbm(p * 900.0f, 2);
    }
    case Part::Scarf: {
        const Vec3 q = ScarfFrame(p);
        const float around = std::atan2(q.x, q.z) * 0.09f;
        const float weave =
            std::sin(around * 1500.0f + q.y * 500.0f) * std::sin(q.y * 1500.0f - around * 500.0f);
        return 0.00035f * weave + 0.0012f * Fbm(p * 70.0f, 3) + 0.0003f * Fbm(p * 800.0f, 2);
    }
    case Part::Jumper: {
        const float column = std::sin(2.0f * Pi * (p.x + 0.35f * p.z) / 0.0058f);
        const float row = std::sin(2.0f * Pi * p.y / 0.0040f + 1.6f * std::abs(column));
        return 0.0004f * column + 0.0002f * row + 0.0003f * Fbm(p * 500.0f, 2);
    }
    case Part::Skin:
        return 0.00005f * Fbm(p * 1400.0f, 2) + 0.00006f * Fbm(p * 500.0f, 2);
    default:
        return 0.0f;
    }
}

Vec3 Bust::Local(const Vec3& point) const
{
    const Vec3 p = point - m_foot;
    return {m_cosine * p.x - m_sine * p.z, p.y, m_sine * p.x + m_cosine * p.z};
}

Bust::Part Bust::PartAt(const Vec3& p)
{
    const float skin = Skin(p);
    const float cap = Cap(p);
    const float scarf = Scarf(p);
    const float jumper = Jumper(p);
    const float nearest = std::min({skin, cap, scarf, jumper});
    if (nearest == cap) {
        return Part::Cap;
    }
    if (nearest == scarf) {
        return Part::Scarf;
    }
    return nearest == jumper ? Part::Jumper : Part::Skin;
}

float Bust::Skin(const Vec3& p)
{
    const Vec3 q = HeadFrame(p);
    const float neck = Neck(p);
    if (q.y < -0.19f) {
        return neck;
    }
    const float skull = Skull(q);
    if (skull > 0.05f) {
        return std::min(skull - 0.035f, neck);
    }
    float head = Eyes(q, skull);
    head = SmoothUnion(head, Nose(q), 0.012f);
    head = SmoothUnion(head, Mouth(q), 0.006f);
    const float slit =
        RodDistance(q, {0.0f, -0.0665f, 0.094f}, {0.0205f, -0.0675f, 0.083f}, 0.0005f, 0.0004f);
    head = SmoothDifference(head, slit, 0.003f);
    head = SmoothUnion(head, Ear(q), 0.006f);
    return SmoothUnion(head, neck, 0.030f);
}

float Bust::Skull(const Vec3& q)
{
    float d = EllipsoidDistance(q, {0, 0.030f, -0.012f}, {0.073f, 0.088f, 0.093f});
    d = SmoothUnion(d, EllipsoidDistance(q, {0, -0.035f, 0.030f}, {0.054f, 0.072f, 0.058f}),
                    0.035f);
    d = SmoothUnion(
        d, RodDistance(q, {0.049f, -0.045f, 0.006f}, {0.018f, -0.094f, 0.062f}, 0.012f, 0.012f),
        0.035f);
    d = SmoothUnion(d, SphereDistance(q, {0, -0.097f, 0.070f}, 0.0165f), 0.028f);
    d = SmoothUnion(d, SphereDistance(q, {0.040f, -0.024f, 0.062f}, 0.018f), 0.030f);
    d = SmoothUnion(
        d, RodDistance(q, {0.010f, 0.019f, 0.081f}, {0.045f, 0.018f, 0.063f}, 0.008f, 0.006f),
        0.022f);
    return d;
}

float Bust::Eyes(const Vec3& q, float skull)
{
    float d = SmoothDifference(
        skull, EllipsoidDistance(q, {0.031f, -0.001f, 0.092f}, {0.016f, 0.010f, 0.013f}), 0.018f);
    // Closed lids over the eyeballs, with the line of the lashes below the middle.
    const Vec3 ball{0.0310f, -0.003f, 0.0660f};
    d = SmoothUnion(d, SphereDistance(q, ball, 0.0148f), 0.005f);
    const float shell = std::abs(SphereDistance(q, ball, 0.0150f)) - 0.0012f;
    const float arc = 9.0f * (q.x - ball.x) * (q.x - ball.x);
    const float line = std::max(shell, std::abs(q.y + 0.0085f - arc) - 0.0005f);
    return SmoothDifference(d, line, 0.0022f);
}

float Bust::Nose(const Vec3& q)
{
    float d = RodDistance(q, {0, 0.012f, 0.084f}, {0, -0.029f, 0.1085f}, 0.0062f, 0.0085f);
    d = SmoothUnion(d, SphereDistance(q, {0, -0.0325f, 0.1080f}, 0.0088f), 0.008f);
    d = SmoothUnion(
        d, EllipsoidDistance(q, {0.0105f, -0.0360f, 0.0975f}, {0.0066f, 0.0068f, 0.0095f}), 0.008f);
    const float hole =
        EllipsoidDistance(q, {0.0058f, -0.0440f, 0.1010f}, {0.0028f, 0.0030f, 0.0048f});
    return SmoothDifference(d, hole, 0.004f);
}

float Bust::Mouth(const Vec3& q)
{
    const float upper =
        RodDistance(q, {0.004f, -0.0635f, 0.0910f}, {0.021f, -0.0670f, 0.0805f}, 0.0046f, 0.0022f);
    const float lower =
        RodDistance(q, {0.0f, -0.0725f, 0.0895f}, {0.018f, -0.0690f, 0.0815f}, 0.0056f, 0.0026f);
    return SmoothUnion(upper, lower, 0.0015f);
}

float Bust::Ear(const Vec3& q)
{
    // Turned out a little: its own x is its thickness.
    const Vec3 e{q.x - 0.0750f + 0.45f * (q.z + 0.012f), q.y + 0.012f, q.z + 0.014f - 0.2f * q.y};
    const float shell = EllipsoidDistance(e, {0, 0, 0}, {0.0075f, 0.0300f, 0.0175f});
    const float bowl = EllipsoidDistance(e, {0.0080f, 0.004f, 0.002f}, {0.0090f, 0.0215f, 0.0110f});
    const float inner = EllipsoidDistance(e, {0.004f, -0.003f, 0.006f}, {0.004f, 0.008f, 0.005f});
    return SmoothUnion(SmoothDifference(shell, bowl, 0.004f), inner, 0.004f);
}

float Bust::Neck(const Vec3& p)
{
    const Vec3 m{std::abs(p.x), p.y, p.z};
    const float neck = RodDistance(m, {0, 0.33f, -0.020f}, {0, 0.18f, -0.030f}, 0.046f, 0.052f);
    const float muscle =
        RodDistance(m, {0.042f, 0.335f, -0.02f}, {0.014f, 0.175f, 0.026f}, 0.009f, 0.010f);
    return SmoothUnion(neck, muscle, 0.02f);
}

// Shoulders and chest in a knitted jumper, cut off flat at the wall.
float Bust::Jumper(const Vec3& p)
{
    const Vec3 m{std::abs(p.x), p.y, p.z};
    float d = RodDistance(m, {0, 0.150f, -0.032f}, {0.132f, 0.112f, -0.035f}, 0.054f, 0.052f);
    d = SmoothUnion(
        d, RodDistance(m, {0.137f, 0.110f, -0.035f}, {0.168f, -0.06f, -0.022f}, 0.052f, 0.046f),
        0.03f);
    d = SmoothUnion(d, EllipsoidDistance(m, {0, 0.035f, -0.012f}, {0.142f, 0.150f, 0.092f}),
                    0.035f);
    d = SmoothUnion(d, RodDistance(m, {0, 0.22f, -0.030f}, {0, 0.16f, -0.030f}, 0.052f, 0.068f),
                    0.06f);
    if (d > 0.02f) {
        return d - 0.004f;
    }
    const float folds = 0.004f * Fbm({p.x * 14.0f, p.y * 22.0f, p.z * 14.0f}, 3);
    return SmoothIntersection(d - folds, 0.002f - p.y, 0.006f);
}

float Bust::Cap(const Vec3& p)
{
    const Vec3 q = CapFrame(p);
    float d = EllipsoidDistance(q, {0, 0.020f, -0.003f}, {0.0800f, 0.086f, 0.099f});
    const float slack = EllipsoidDistance(q, {0, 0.085f, -0.045f}, {0.050f, 0.036f, 0.050f});
    d = SmoothUnion(d, slack, 0.05f);
    d = SmoothIntersection(d, -q.y, 0.006f);
    // The turned-up cuff: a flattened band that follows the ellipse of the head.
    const float radius = std::sqrt(q.x * q.x / (0.084f * 0.084f) + q.z * q.z / (0.103f * 0.103f));
    const float out = std::abs(radius - 0.985f) * 0.090f;
    const float up = std::max(std::abs(q.y - 0.018f) - 0.019f, 0.0f);
    const float cuff = std::sqrt(out * out + up * up) - 0.0062f;
    d = SmoothUnion(d, cuff, 0.004f);
    return d > 0.01f ? d - 0.003f : d - 0.003f * Fbm(q * 26.0f, 2);
}

float Bust::Scarf(const Vec3& p)
{
    const Vec3 q = ScarfFrame(p);
    if (std::abs(q.y) > 0.25f) {
        return std::abs(q.y) - 0.1f;
    }
    const float angle = std::atan2(q.x, q.z);
    const Vec3 round{q.x / 0.94f, q.y, q.z};
    const float low = RingDistance(
        {round.x, round.y + 0.016f + 0.006f * std::sin(angle + 0.6f), round.z}, 0.084f, 0.027f);
    const float high = RingDistance(
        {round.x, round.y - 0.022f + 0.007f * std::sin(angle * 2.0f), round.z}, 0.072f, 0.021f);
    float d = SmoothUnion(low, high, 0.008f);
    // One end hangs down over the chest.
    const Vec3 knot{-0.030f, 0.185f, 0.078f};
    const Vec3 end{-0.052f, 0.062f, 0.090f};
    const Vec3 axis = Normalized(end - knot);
    const Vec3 side = Normalized(Cross(axis, {0, 0, 1}));
    const Vec3 depth = Cross(side, axis);
    const Vec3 r = p - Mix(knot, end, 0.5f);
    const float aside = Dot(r, side);
    const float pleat = 0.0045f * std::sin(aside * 260.0f + 2.0f);
    const Vec3 box{std::max(std::abs(aside) - 0.026f, 0.0f),
                   std::max(std::abs(Dot(r, axis)) - 0.070f, 0.0f),
                   std::max(std::abs(Dot(r, depth) - pleat) - 0.002f, 0.0f)};
    d = SmoothUnion(d, Length(box) - 0.0048f, 0.012f);
    if (d > 0.025f) {
        return 0.8f * (d - 0.009f);
    }
    return 0.8f * (d - 0.003f * std::sin(angle * 2.0f + q.y * 75.0f) - 0.005f * Fbm(p * 16.0f, 3));
}

Material Bust::SkinMaterial(const Vec3& p)
{
    const Vec3 q = HeadFrame(p);
    const float tone = Fbm(p * 22.0f, 4);
    const float mottle = Fbm(p * 130.0f, 3);
    Vec3 color = Vec3{0.62f, 0.375f, 0.265f} * (1.0f + 0.10f * tone + 0.07f * mottle);
    const auto tint = [&](const Vec3& target, float share) { color = Mix(color, target, share); };
    const float cheek =
        SmoothStep(0.045f, 0.0f, SphereDistance(q, {0.042f, -0.034f, 0.068f}, 0.0f));
    const float nose = SmoothStep(0.026f, 0.004f, SphereDistance(q, {0, -0.034f, 0.108f}, 0.0f));
    const float ear = SmoothStep(0.012f, 0.002f, Ear(q));
    tint({0.60f, 0.245f, 0.175f}, 0.55f * std::max({cheek, nose, ear}));
    const float lip = SmoothStep(0.0016f, 0.0f, Mouth(q));
    tint({0.47f, 0.135f, 0.115f}, 0.75f * lip);
    const float arc = 9.0f * (q.x - 0.031f) * (q.x - 0.031f);
    const float lash = SmoothStep(0.0019f, 0.0007f, std::abs(q.y + 0.0085f - arc)) *
                       SmoothStep(0.0150f, 0.0125f, std::abs(q.x - 0.031f)) *
                       SmoothStep(0.066f, 0.070f, q.z);
    tint({0.045f, 0.025f, 0.018f}, 0.85f * lash);
    const float browLine = std::abs(q.y - 0.0215f + 5.0f * (q.x - 0.034f) * (q.x - 0.034f));
    const float hair = 0.6f + 0.8f * Fbm({q.x * 260.0f + q.y * 420.0f, q.y * 160.0f, 1.0f}, 2);
    const float brow = SmoothStep(0.0046f, 0.0018f, browLine) *
                       SmoothStep(0.023f, 0.017f, std::abs(q.x - 0.032f)) *
                       SmoothStep(0.04f, 0.05f, q.z);
    tint({0.10f, 0.055f, 0.032f}, Saturate(0.62f * brow * hair));
    Material skin;
    skin.albedo = color;
    skin.roughness = Mix(0.46f, 0.34f, lip);
    skin.reflectance = 0.028f;
    skin.wrap = {0.27f, 0.12f, 0.07f};
    skin.depth = 0.006f;
    skin.translucency = Vec3{0.30f, 0.07f, 0.03f} * ear;
    return skin;
}

Material Bust::CapMaterial(const Vec3& p)
{
    Material wool;
    const float tone = Fbm(p * 240.0f, 3);
    wool.albedo = Vec3{0.58f, 0.50f, 0.38f} * (1.0f + 0.35f * tone);
    wool.roughness = 0.95f;
    wool.reflectance = 0.02f;
    wool.wrap = {0.12f, 0.10f, 0.08f};
    wool.depth = 0.003f;
    return wool;
}

Material Bust::JumperMaterial(const Vec3& p)
{
    Material wool;
    const float tone = Fbm(p * 260.0f, 3);
    wool.albedo = Vec3{0.020f, 0.034f, 0.062f} * (1.0f + 0.7f * tone);
    wool.roughness = 0.95f;
    wool.reflectance = 0.02f;
    return wool;
}

Material Bust::ScarfMaterial(const Vec3& p)
{
    Material cloth;
    const float tone = Fbm(p * 200.0f, 3);
    cloth.albedo = Vec3{0.50f, 0.022f, 0.030f} * (1.0f + 0.4f * tone);
    cloth.roughness = 0.9f;
    cloth.reflectance = 0.025f;
    cloth.wrap = {0.10f, 0.03f, 0.03f};
    cloth.depth = 0.002f;
    return cloth;
}

} // namespace LumetraSample
