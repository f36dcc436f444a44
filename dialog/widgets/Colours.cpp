// SPDX-License-Identifier: MIT
#include "widgets/Colours.h"

#include <algorithm>
#include <cmath>

namespace qvtdialog {
namespace {

using SdkDebugDialog::Role;
using SdkDebugDialog::Severity;

constexpr double kContrast = 4.5;

// Relative luminance, as the Web Content Accessibility Guidelines define it.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  const QColor rgb = colour.toRgb();
  return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

QColor mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto part = [&](int of_a, int of_b) {
    return static_cast<int>(std::lround(of_a + (of_b - of_a) * share_of_b));
  };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

constexpr Tone kTones[] = {Tone::accent, Tone::error, Tone::warning, Tone::note, Tone::quiet, Tone::added, Tone::byte};

// The hue and saturation that a tone has in every palette.
QColor wish(Tone tone) {
  switch (tone) {
    case Tone::accent:
      return {0x1F, 0x6F, 0xC4};
    case Tone::error:
      return {0xD0, 0x21, 0x2B};
    case Tone::warning:
      return {0xB3, 0x6B, 0x00};
    case Tone::note:
      return {0x0F, 0x7B, 0x8A};
    case Tone::quiet:
      return {0x77, 0x77, 0x77};
    case Tone::added:
      return {0x2E, 0x9E, 0x44};
    case Tone::byte:
      return {0xA0, 0x30, 0xB0};
  }
  return {};
}

QColor wish(Role role) {
  switch (role) {
    case Role::head:
    case Role::target:
    case Role::connection:
      return {0x7A, 0x3E, 0x9D};
    case Role::option:
      return {0x1F, 0x5F, 0xB8};
    case Role::keyword:
      return {0x0F, 0x76, 0x80};
    case Role::value:
      return {0x9A, 0x4D, 0x00};
    case Role::ignored:
      return wish(Tone::quiet);
    case Role::unknown:
      return wish(Tone::error);
  }
  return {};
}

// The colour, as much darker or lighter as it takes to be read on the base colour and on each of the backgrounds.
QColor readable(const QColor& wished, const QPalette& palette) {
  const QColor end = is_dark(palette) ? Qt::white : Qt::black;
  const auto is_readable = [&](const QColor& candidate) {
    return contrast(candidate, palette.color(QPalette::Base)) >= kContrast &&
           std::ranges::all_of(kTones,
                               [&](Tone tone) { return contrast(candidate, background(tone, palette)) >= kContrast; });
  };
  constexpr int kSteps = 40;
  for (int step = 0; step < kSteps; ++step) {
    const QColor candidate = mixed(wished, end, static_cast<double>(step) / kSteps);
    if (is_readable(candidate)) return candidate;
  }
  return end;
}

}  // namespace

QColor colour(Tone tone, const QPalette& palette) { return readable(wish(tone), palette); }

QColor colour(Role role, const QPalette& palette) { return readable(wish(role), palette); }

Tone tone_of(Severity severity) {
  switch (severity) {
    case Severity::error:
      return Tone::error;
    case Severity::warning:
      return Tone::warning;
    case Severity::note:
      break;
  }
  return Tone::note;
}

QColor background(Tone tone, const QPalette& palette) {
  return mixed(palette.color(QPalette::Base), wish(tone), is_dark(palette) ? 0.3 : 0.18);
}

void set_ink(QWidget& label, Tone tone) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, colour(tone, palette));
  label.setPalette(palette);
}

double contrast(const QColor& a, const QColor& b) {
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

bool is_dark(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  return contrast(base, Qt::white) > contrast(base, Qt::black);
}

}  // namespace qvtdialog
