#include "host/diagnosis/number_ranges.h"

namespace host {

std::string RangesOf(const std::vector<unsigned long>& numbers) {
    std::string text;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
            ++last;
        }
        if (last - first < 2) {
            last = first;
        }
        text += (text.empty() ? "" : ", ") + std::to_string(numbers[first]);
        if (last != first) {
            text += '-' + std::to_string(numbers[last]);
        }
        first = last + 1;
    }
    return text.empty() ? "none" : text;
}

} // namespace host
