// screens/outlook/side_labels.cpp - down from the top, then up from the bottom.
#include "screens/outlook/side_labels.h"

#include <algorithm>

namespace tallyhoop {

std::vector<double> movedApart(std::vector<double> middles, double height, double top, double bottom)
{
    double least = top + height / 2;
    for (double& middle : middles) {
        middle = std::max(middle, least);
        least = middle + height;
    }
    double most = bottom - height / 2;
    for (auto middle = middles.rbegin(); middle != middles.rend(); ++middle) {
        *middle = std::min(*middle, most);
        most = *middle - height;
    }
    return middles;
}

} // namespace tallyhoop
