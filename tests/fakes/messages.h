// A message box that a test has to read.
#pragma once

#include "platform/message_box.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace orvane::fakes {

/// Keeps every message. A message that nobody has taken fails the test.
class ScriptedMessageBox : public MessageBox {
  public:
    ScriptedMessageBox() = default;
    ScriptedMessageBox(const ScriptedMessageBox&) = delete;
    ScriptedMessageBox& operator=(const ScriptedMessageBox&) = delete;
    ~ScriptedMessageBox() override {
        for (const std::string& text : unread_)
            ADD_FAILURE() << "message left unread: " << text;
    }

    void Show(const std::string& text) override { Keep(text); }
    /// Kept as "(!) title: text".
    void ShowExclamation(const std::string& text, const std::string& title) override {
        Keep("(!) " + title + ": " + text);
    }

    /// The oldest unread message; "" when there is none.
    std::string Take() {
        if (unread_.empty())
            return "";
        std::string text = unread_.front();
        unread_.pop_front();
        return text;
    }
    std::vector<std::string> TakeAll() {
        std::vector<std::string> texts(unread_.begin(), unread_.end());
        unread_.clear();
        return texts;
    }

    std::function<void()> WhileShown; ///< runs while a message is open

  private:
    void Keep(const std::string& text) {
        unread_.push_back(text);
        if (WhileShown)
            WhileShown();
    }

    std::deque<std::string> unread_;
};

} // namespace orvane::fakes
