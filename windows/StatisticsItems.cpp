#include "windows/StatisticsItems.h"

namespace tessarin {

std::vector<TilastoValinta> TilastoValinnat(std::initializer_list<std::string_view> columns) {
    std::vector<TilastoValinta> items;
    for (const std::string_view column : columns) {
        items.push_back({std::string(column), TilastoLaji::kColumn, true});
    }
    items.push_back({"-"});
    for (const char* header : {"File name", "Sample ID", "Comments"}) {
        items.push_back({header, TilastoLaji::kHeader, false});
    }
    items.push_back({"-"});
    items.push_back({"Show in print preview page"});
    return items;
}

}  // namespace tessarin
