#pragma once

#include <QImage>

#include <gtest/gtest.h>

#include <string>

namespace zqbchwcx::testing {

/// Compares with the stored picture of that name. A picture that differs is written to the reports of the build. With
/// QUILLON_WRITE_REFERENCES set, the picture is stored instead.
::testing::AssertionResult LooksLikeReference(const QImage& picture, const std::string& name);

/// Around all pixels with a channel that differs by more than that; empty when there is none.
QRect DifferenceOf(const QImage& a, const QImage& b, int smallestDifference = 0);

/// As in "3,4 10x20".
std::string TextOf(const QRect& area);

} // namespace zqbchwcx::testing
