#include "qt/views/ProgressBarView.h"

#include <utility>

namespace velmar::qt {

namespace {

constexpr int kWhole = 1000;

}  // namespace

ProgressBarView::ProgressBarView(controls::ProgressBar& bar, UserEvents events, QWidget* parent)
    : QProgressBar(parent), ControlLink(bar, *this, std::move(events)), bar_(bar) {
  setRange(0, kWhole);
  setTextVisible(false);
  ProgressBarView::Show(controls::Property::kValue);
}

void ProgressBarView::Show(controls::Property what) {
  if (what != controls::Property::kValue && what != controls::Property::kRange) return;
  const double range = static_cast<double>(bar_.Max()) - static_cast<double>(bar_.Min());
  const double done = static_cast<double>(bar_.Value()) - static_cast<double>(bar_.Min());
  setValue(range > 0 ? static_cast<int>(done / range * kWhole) : kWhole);
}

}  // namespace velmar::qt
