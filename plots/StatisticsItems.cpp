#include "plots/StatisticsItems.h"

namespace tessarin {
namespace {

TilastoValinta Column(std::string text) {
    return {std::move(text), TilastoLaji::kColumn, true};
}

void AppendCommon(std::vector<TilastoValinta>& items) {
    items.push_back({"-"});
    for (const char* header : {"File name", "Sample ID", "Comments"}) {
        items.push_back({header, TilastoLaji::kHeader, false});
    }
    items.push_back({"-"});
    items.push_back({"Show in print preview page"});
}

}  // namespace

std::vector<TilastoValinta> TilastoValinnat(std::string_view type) {
    std::vector<TilastoValinta> items;
    if (type == "DotPlot") {
        items = {Column("Number"), Column("% of Vis"), Column("XMean"),
                 Column("YMean"),  Column("XGeoMean"), Column("YGeoMean")};
    } else if (type == "Histogram") {
        items = {Column("Number"), Column("% of vis"), Column("XMean"), Column("XGeoMean"),
                 Column("CV")};
    }
    if (!items.empty()) {
        AppendCommon(items);
    }
    return items;
}

}  // namespace tessarin
