// Commands on a variable: lines whose first word holds "$".
#include <algorithm>
#include <vector>

#include "core/Numbers.h"
#include "core/Text.h"
#include "tools/ToolCommands.h"
#include "tools/ToolRun.h"

namespace tessarin {
namespace {

struct VariableCommand {
    ToolPattern form;  // without the variable
    void (*run)(ToolRun& run, SkriptiMuuttuja& variable, const ToolValue& value);
    bool meant = true;  // somebody writes it on purpose
};

void Set(ToolRun& /*run*/, SkriptiMuuttuja& variable, const ToolValue& value) {
    constexpr int32_t kDecimals = 5;
    const auto number = value.Number();
    variable.Numeerinen = number.has_value();
    variable.Desimaalit = number ? kDecimals : variable.Desimaalit;
    variable.Arvo = number ? NumberText(*number) : value.Text();
}

const char* WhyNot(ExpressionFault fault) {
    switch (fault) {
        case ExpressionFault::UnknownWord:
            return "The expression holds a word that is not known; a text stands in quotes";
        case ExpressionFault::WrongType:
            return "The expression holds a text where a number is needed";
        case ExpressionFault::Overflow:
            return "The expression holds a number that is too large";
        case ExpressionFault::DivisionByZero:
            return "The expression divides by zero";
        case ExpressionFault::WrongArgument:
            return "The expression calls a function with what it does not take";
        case ExpressionFault::NullValue:
            return "The expression has no value";
        case ExpressionFault::TooLarge:
            return "The expression is too long";
        default:
            return "That does not read as an expression";
    }
}

// A comma separates arguments. Where that makes no sense it is a decimal comma, and then the
// result has one too.
void Calc(ToolRun& run, SkriptiMuuttuja& variable, const ToolValue& value) {
    ExpressionResult result = run.laskin.LaskeLauseke(value.Text());
    if (result.fault != ExpressionFault::None && value.Text().find(',') != std::string::npos) {
        result = run.laskin.LaskeLauseke(KorvaaTeksti(value.Text(), ",", "."));
        result.text = KorvaaTeksti(result.text, ".", ",");
    }
    if (result.fault != ExpressionFault::None) {
        throw ToolFault{WhyNot(result.fault)};
    }
    variable.Arvo = std::move(result.text);
}

void WholePart(ToolRun& /*run*/, SkriptiMuuttuja& variable, const ToolValue& value) {
    variable.Arvo = NumberText(Int(NumberOf(value)));
}

// Seven places are told apart; a number beyond them counts as none.
int Digits(double number) {
    int digits = 1;
    for (double bound = 10; number >= bound; bound *= 10) {
        ++digits;
    }
    constexpr int kMostDigits = 7;
    return digits > kMostDigits ? 0 : digits;
}

void PadWithZeros(ToolRun& /*run*/, SkriptiMuuttuja& variable, const ToolValue& value) {
    constexpr double kWidest = 10000;
    const double width = Rounded(NumberOf(value));
    const double zeros = width - Digits(NumberOf(variable.Arvo));
    if (zeros > kWidest) {
        throw ToolFault{"That many zeros are too many"};
    }
    if (zeros > 0) {
        variable.Arvo.insert(0, static_cast<std::size_t>(zeros), '0');
    }
    variable.Numeerinen = false;
}

const std::vector<VariableCommand>& Commands() {
    using Variable = SkriptiMuuttuja;
    static const std::vector<VariableCommand> commands = {
        {ToolPattern("set"), Set},
        {ToolPattern("digits"),
         [](ToolRun&, Variable& variable, const ToolValue& value) {
             variable.Desimaalit = ToInt32(Rounded(NumberInFront(value.Text())));
         }},
        {ToolPattern("calc"), Calc},
        {ToolPattern("int"), WholePart},
        {ToolPattern("zeros"), PadWithZeros},
        {ToolPattern("if.bigger"),
         [](ToolRun& run, Variable& variable, const ToolValue& value) {
             run.Ehto(NumberOf(variable.Arvo) > NumberOf(value));
         }},
        {ToolPattern("if.smaller"),
         [](ToolRun& run, Variable& variable, const ToolValue& value) {
             run.Ehto(NumberOf(variable.Arvo) < NumberOf(value));
         }},
        {ToolPattern("if.equals"),
         [](ToolRun& run, Variable& variable, const ToolValue& value) {
             run.Ehto(NumberOf(variable.Arvo) == NumberOf(value));
         }},
        {ToolPattern("if.same"),
         [](ToolRun& run, Variable& variable, const ToolValue& value) {
             run.Ehto(value.Text() == variable.Arvo);
         }},
        {ToolPattern("if.different"),
         [](ToolRun& run, Variable& variable, const ToolValue& value) {
             run.Ehto(value.Text() != variable.Arvo);
         }},
        {ToolPattern("if.X"), [](ToolRun& run, Variable&, const ToolValue&) { run.Ehto(false); },
         false},
    };
    return commands;
}

}  // namespace

bool TunteeMuuttujakomennon(std::span<const std::string> words) {
    const auto fits = [words](const VariableCommand& command) {
        return command.meant && command.form.Fits(words.subspan(1)) == ToolPattern::Fit::kYes;
    };
    return words[0].find('$') != std::string::npos && std::ranges::any_of(Commands(), fits);
}

bool SuoritaMuuttujakomento(ToolRun& run, const ToolLine& line) {
    const std::string& name = line.words[0];
    if (name.find('$') == std::string::npos) {
        return false;
    }
    SkriptiMuuttuja& variable = run.Muuttujat().EtsiTaiLisaa(name);
    const std::span<const std::string> words(line.words);
    line.Word(1);  // a line that is only a variable cannot be carried out
    const VariableCommand* command =
        EtsiMuoto(std::span<const VariableCommand>(Commands()), words.subspan(1));
    if (command != nullptr) {
        command->run(run, variable, line.value);
    }
    return true;
}

}  // namespace tessarin
