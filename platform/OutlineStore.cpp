#include "platform/OutlineStore.h"

#include <utility>

namespace tamber {

namespace {

/// Vectors of a kind that are kept; the richest kanji have a tenth of them.
constexpr std::size_t Capacity = 1024;

template <class Item>
void Keep(std::vector<Item>&& items, std::vector<std::vector<Item>>& kept) {
    if (kept.size() == Capacity) return;
    items.clear();
    kept.push_back(std::move(items));
}

template <class Item>
std::vector<Item> TakeLast(std::vector<std::vector<Item>>& kept) {
    std::vector<Item> items;
    if (kept.empty()) return items;
    items = std::move(kept.back());
    kept.pop_back();
    return items;
}

}  // namespace

void OutlineStore::Reclaim(std::vector<OutlineContour>& contours) {
    for (OutlineContour& contour : contours) {
        for (OutlineCurve& curve : contour.Curves) Keep(std::move(curve.Points), points_);
        Keep(std::move(contour.Curves), curves_);
    }
    contours.clear();
}

std::vector<OutlinePoint> OutlineStore::Points() {
    return TakeLast(points_);
}

std::vector<OutlineCurve> OutlineStore::Curves() {
    return TakeLast(curves_);
}

}  // namespace tamber
