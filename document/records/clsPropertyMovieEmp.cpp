#include "document/records/clsPropertyMovieEmp.h"

namespace tamber {

void clsPropertyMovieEmp::Load(clsCSV& csv) {
    MovieName = csv.TakeText();
    Width = csv.TakeLong();
    height = csv.TakeLong();
}

void clsPropertyMovieEmp::Save(clsCSV& csv) const {
    csv.Put(MovieName);
    csv.Put(Width);
    csv.Put(height);
}

}  // namespace tamber
