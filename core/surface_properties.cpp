#include "core/surface_properties.h"
#include <algorithm>
#include <cmath>

namespace tolva {

namespace {

// Bounded far beyond any screen, so that pixel arithmetic on it cannot overflow.
constexpr float MaxSize = 1.0e7f;

float ValidSize(float size)
{
    return size > 0 ? std::min(size, MaxSize) : 0;
}
float ValidPosition(float position)
{
    return std::isfinite(position) ? std::clamp(position, -MaxSize, MaxSize) : 0;
}

} // namespace

float SurfaceProperties::ScaleWidth() const
{
    return std::max(0.0f, m_width - float(2 * BorderPixels() * TwipsPerPixel));
}

float SurfaceProperties::ScaleHeight() const
{
    return std::max(0.0f, m_height - float(2 * BorderPixels() * TwipsPerPixel));
}

void SurfaceProperties::Move(float left, float top, float width, float height)
{
    m_left = ValidPosition(left);
    m_top = ValidPosition(top);
    m_width = ValidSize(width);
    m_height = ValidSize(height);
}

} // namespace tolva
