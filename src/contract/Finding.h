// What a check of the values found: the message, where the user is to be pointed, and what each
// answer leads to.
//
// A check is a plain function over the values as typed, the record and the model of the data. It
// knows no window and changes nothing, so that it can be run and tested without a dialog; the
// dialog that walks its checks at OK brings the page up, shows the message and gives the focus. A
// question, which has answers, is asked first, and the page comes up where the answer stays.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "text/TextTemplate.h"

struct Finding {
    // What an answer leads to.
    enum class Next {
        kStay,   // the dialog stays open, with the focus where the finding points
        kGoOn,   // the next check runs
        kCancel  // the dialog ends as by Cancel
    };
    struct Answer {
        UINT nButton;  // IDOK, IDYES ...
        Next eNext = Next::kStay;
        std::function<void()> step = {};  // what the answer does before
    };

    // One of the two: a string of the library, or a text that has no id. With neither the dialog
    // stays without a word.
    UINT nStringId = 0;
    const char* szText = nullptr;
    // They stand for the "%s" and "%d" of the text, in order, or for its "%0" to "%9" by number.
    std::vector<std::string> vArguments = {};
    TemplatePlaces ePlaces = TemplatePlaces::kConversions;
    UINT uFlags = MB_ICONHAND;  // icon and buttons, as for a message box
    int nPage = kCurrentPage;   // counted from 0
    int nControl = 0;           // the id of the control that is to have the focus; 0: none
    // Every button that is not named here stays.
    std::vector<Answer> vAnswers = {};

    static constexpr int kCurrentPage = -1;

    const Answer* FindAnswer(UINT nButton) const {
        for (const Answer& answer : vAnswers) {
            if (answer.nButton == nButton) return &answer;
        }
        return nullptr;
    }
};

using CheckResult = std::optional<Finding>;

// What most checks find: a message with the stop icon, or a question with Yes and No. The numbers
// stand for the "%d" of the string, in order.
Finding Refusal(UINT nStringId, int nPage, int nControl = 0,
                std::initializer_list<std::int64_t> numbers = {});
Finding Question(UINT nStringId, int nPage, int nControl,
                 std::initializer_list<std::int64_t> numbers,
                 std::vector<Finding::Answer> vAnswers);

// The texts of a dialog's fields as they stand on the screen, by control id.
using TypedValues = std::map<int, std::string>;
