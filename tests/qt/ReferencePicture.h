#pragma once

#include <QImage>

#include <gtest/gtest.h>

#include <string>

namespace zqbchwcx::testing {

/// Compares with the stored picture of that name. A picture that differs is written, with one that shows where, to
/// the reports of the build. With QUILLON_WRITE_REFERENCES set, the picture is stored instead.
::testing::AssertionResult LooksLikeReference(const QImage& picture, const std::string& name);

/// Where the two pictures differ; empty when they are equal.
QRect DifferenceOf(const QImage& a, const QImage& b);

} // namespace zqbchwcx::testing
