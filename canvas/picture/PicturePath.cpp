#include "canvas/picture/PicturePath.h"

#include <algorithm>

namespace tamber {

PicturePath PicturePath::OfBox(double left, double top, double right, double bottom) {
    PicturePath path;
    path.MoveTo(left, top);
    path.LineTo(right, top);
    path.LineTo(right, bottom);
    path.LineTo(left, bottom);
    path.Close();
    return path;
}

void PicturePath::Put(cairo_path_data_type_t type, int length) {
    cairo_path_data_t head;
    head.header.type = type;
    head.header.length = length;
    data_.push_back(head);
}

void PicturePath::PutPoint(double x, double y) {
    cairo_path_data_t point;
    point.point.x = x;
    point.point.y = y;
    data_.push_back(point);
    penX_ = x;
    penY_ = y;
}

void PicturePath::MoveTo(double x, double y) {
    Put(CAIRO_PATH_MOVE_TO, 2);
    PutPoint(x, y);
}

void PicturePath::LineTo(double x, double y) {
    Put(CAIRO_PATH_LINE_TO, 2);
    PutPoint(x, y);
}

void PicturePath::CurveTo(double controlX, double controlY, double x, double y) {
    const double fromX = penX_;
    const double fromY = penY_;
    Put(CAIRO_PATH_CURVE_TO, 4);
    PutPoint(fromX + (controlX - fromX) * 2 / 3, fromY + (controlY - fromY) * 2 / 3);
    PutPoint(x + (controlX - x) * 2 / 3, y + (controlY - y) * 2 / 3);
    PutPoint(x, y);
}

void PicturePath::Close() {
    Put(CAIRO_PATH_CLOSE_PATH, 1);
}

bool PicturePath::Reach(double& left, double& top, double& right, double& bottom) const {
    bool any = false;
    for (std::size_t i = 0; i < data_.size();) {
        const auto length = static_cast<std::size_t>(data_[i].header.length);
        for (std::size_t k = 1; k < length; ++k) {
            const auto [x, y] = data_[i + k].point;
            left = any ? std::min(left, x) : x;
            right = any ? std::max(right, x) : x;
            top = any ? std::min(top, y) : y;
            bottom = any ? std::max(bottom, y) : y;
            any = true;
        }
        i += length;
    }
    return any;
}

void PicturePath::AppendTo(cairo_t* context) const {
    const cairo_path_t path{CAIRO_STATUS_SUCCESS, const_cast<cairo_path_data_t*>(data_.data()),
                            static_cast<int>(data_.size())};
    cairo_append_path(context, &path);
}

}  // namespace tamber
