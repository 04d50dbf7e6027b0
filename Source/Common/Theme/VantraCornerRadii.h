#pragma once

// Four corner radii in logical pixels, in the order top left, top right, bottom left, bottom right.

#include <QtCore/qglobal.h>

class VantraCornerRadii
{
public:
    constexpr explicit VantraCornerRadii(int inRadius = 0)
        : VantraCornerRadii(inRadius, inRadius, inRadius, inRadius)
    {
    }
    constexpr VantraCornerRadii(int inTopLeft, int inTopRight, int inBottomLeft, int inBottomRight)
        : mTopLeft(inTopLeft), mTopRight(inTopRight), mBottomLeft(inBottomLeft), mBottomRight(inBottomRight)
    {
    }

    constexpr int topLeft() const { return mTopLeft; }
    constexpr int topRight() const { return mTopRight; }
    constexpr int bottomLeft() const { return mBottomLeft; }
    constexpr int bottomRight() const { return mBottomRight; }

    constexpr void setTopLeft(int inRadius) { mTopLeft = inRadius; }
    constexpr void setTopRight(int inRadius) { mTopRight = inRadius; }
    constexpr void setBottomLeft(int inRadius) { mBottomLeft = inRadius; }
    constexpr void setBottomRight(int inRadius) { mBottomRight = inRadius; }

    // The larger and the smaller of the two corners of a side.
    constexpr int maxLeft() const { return qMax(mTopLeft, mBottomLeft); }
    constexpr int minLeft() const { return qMin(mTopLeft, mBottomLeft); }
    constexpr int maxRight() const { return qMax(mTopRight, mBottomRight); }
    constexpr int minRight() const { return qMin(mTopRight, mBottomRight); }
    constexpr int maxTop() const { return qMax(mTopLeft, mTopRight); }
    constexpr int minTop() const { return qMin(mTopLeft, mTopRight); }
    constexpr int maxBottom() const { return qMax(mBottomLeft, mBottomRight); }
    constexpr int minBottom() const { return qMin(mBottomLeft, mBottomRight); }

private:
    int mTopLeft;
    int mTopRight;
    int mBottomLeft;
    int mBottomRight;
};
