#pragma once

#include <cairo.h>

#include <vector>

namespace tamber {

/// An outline of subpaths in twips, kept in the form that cairo takes.
class PicturePath {
public:
    /// A box, clockwise from its left upper corner.
    static PicturePath OfBox(double left, double top, double right, double bottom);

    bool IsEmpty() const { return data_.empty(); }
    void MoveTo(double x, double y);
    void LineTo(double x, double y);
    /// A quadratic curve from where the pen stands.
    void CurveTo(double controlX, double controlY, double x, double y);
    void Close();
    /// The box around all points, those that curves only bend towards as well; false for none.
    bool Reach(double& left, double& top, double& right, double& bottom) const;
    /// Appends the outline to the current path of a context, under its matrix.
    void AppendTo(cairo_t* context) const;

private:
    void Put(cairo_path_data_type_t type, int length);
    void PutPoint(double x, double y);

    std::vector<cairo_path_data_t> data_;
    double penX_ = 0;
    double penY_ = 0;
};

}  // namespace tamber
