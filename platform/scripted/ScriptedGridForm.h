// A child window with a table for tests: it keeps what the program did to it.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/GridForm.h"

namespace tessarin {

class ScriptedGridForm : public GridForm {
  public:
    /// `gone` is called when the form is destroyed.
    ScriptedGridForm(GridFormEvents& newEvents, std::function<void(ScriptedGridForm*)> gone)
        : events(newEvents), gone_(std::move(gone)) {}
    ~ScriptedGridForm() override { gone_(this); }

    void SetCaption(std::string_view newCaption) override { caption = newCaption; }
    void SetTable(const GridTable& newTable) override { table = newTable; }
    void SetOuterSize(Twips newWidth, Twips newHeight) override {
        width = newWidth;
        height = newHeight;
    }
    Twips Left() const override { return left; }
    Twips Top() const override { return top; }
    void SetPlace(Twips newLeft, Twips newTop) override {
        left = newLeft;
        top = newTop;
    }
    void Show() override { events.Form_Activate(); }
    /// As many pixels as the table has cells, so that a test can tell tables apart.
    Bitmap Picture() const override {
        const auto cells =
            static_cast<std::size_t>(table.Cols()) * static_cast<std::size_t>(table.Rows());
        return {table.Cols(), table.Rows(), 1, std::vector<uint32_t>(cells, 0xffffffff)};
    }

    /// The row whose first cell reads so; the test fails when there is none.
    const std::vector<std::string>& Row(const std::string& head) const {
        for (const GridRow& row : table.rows) {
            if (row.cells.at(0) == head) {
                return row.cells;
            }
        }
        throw std::out_of_range("no row " + head);
    }

    GridFormEvents& events;
    std::string caption;
    GridTable table;
    Twips width;
    Twips height;
    Twips left;
    Twips top;

  private:
    std::function<void(ScriptedGridForm*)> gone_;
};

}  // namespace tessarin
