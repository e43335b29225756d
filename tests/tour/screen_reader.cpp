#include "screen_reader.h"

#include "child.h"

#include <cstdint>
#include <optional>
#include <utility>

#include <gio/gio.h>

namespace orvane::tour {

namespace {

using Value = std::shared_ptr<GVariant>;
using Connection = std::shared_ptr<GDBusConnection>;

constexpr int AnswerTime = 3000; // milliseconds
constexpr int DeepestControl = 30;

// Bits of a control's state.
constexpr unsigned StateChecked = 4;
constexpr unsigned StateFocused = 12;
constexpr unsigned StateEnabled = 8;
constexpr unsigned StateShowing = 25;

/// A node of the tree: the connection name of its program, and its path there.
struct Node {
    std::string Program;
    std::string Path;
};

Connection Connect(const std::string& address) {
    GError* error = nullptr;
    const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                         G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    GDBusConnection* connection =
        g_dbus_connection_new_for_address_sync(address.c_str(), flags, nullptr, nullptr, &error);
    if (connection == nullptr) {
        const std::string why = error->message;
        g_error_free(error);
        throw Fault("no connection to the bus " + address + ": " + why);
    }
    return {connection, [](GDBusConnection* old) {
                g_dbus_connection_close_sync(old, nullptr, nullptr);
                g_object_unref(old);
            }};
}

/// Calls a method; nothing if there is no answer.
Value Call(const Connection& connection, const Node& node, const char* interface, const char* method,
           GVariant* arguments = nullptr) {
    GVariant* answer = g_dbus_connection_call_sync(connection.get(), node.Program.c_str(), node.Path.c_str(),
                                                   interface, method, arguments, nullptr,
                                                   G_DBUS_CALL_FLAGS_NONE, AnswerTime, nullptr, nullptr);
    return {answer, [](GVariant* old) {
                if (old != nullptr)
                    g_variant_unref(old);
            }};
}

bool Is(const Value& answer, const char* type) {
    return answer && g_variant_is_of_type(answer.get(), G_VARIANT_TYPE(type)) != FALSE;
}

std::string FirstText(const Value& answer) {
    const char* text = nullptr;
    if (Is(answer, "(s)"))
        g_variant_get(answer.get(), "(&s)", &text);
    return text == nullptr ? "" : text;
}

} // namespace

class ScreenReader::Tree {
  public:
    explicit Tree(Connection connection) : connection_(std::move(connection)) {}

    [[nodiscard]] std::vector<Node> Children(const Node& node) const {
        const Value answer = Call(connection_, node, "org.a11y.atspi.Accessible", "GetChildren");
        std::vector<Node> children;
        if (!Is(answer, "(a(so))"))
            return children;
        GVariantIter* pairs = nullptr;
        g_variant_get(answer.get(), "(a(so))", &pairs);
        const char* program = nullptr;
        const char* path = nullptr;
        while (g_variant_iter_next(pairs, "(&s&o)", &program, &path) != 0)
            children.push_back({program, path});
        g_variant_iter_free(pairs);
        return children;
    }

    [[nodiscard]] std::string Name(const Node& node) const {
        const Value answer = Call(connection_, node, "org.freedesktop.DBus.Properties", "Get",
                                  g_variant_new("(ss)", "org.a11y.atspi.Accessible", "Name"));
        if (!Is(answer, "(v)"))
            return "";
        GVariant* value = nullptr;
        g_variant_get(answer.get(), "(v)", &value);
        std::string name = g_variant_get_string(value, nullptr);
        g_variant_unref(value);
        return name;
    }

    /// The control with its state; nothing if it is not shown.
    [[nodiscard]] std::optional<Control> Read(const Node& node) const {
        const Value answer = Call(connection_, node, "org.a11y.atspi.Accessible", "GetState");
        if (!Is(answer, "(au)"))
            return std::nullopt;
        GVariantIter* words = nullptr;
        g_variant_get(answer.get(), "(au)", &words);
        std::uint32_t state = 0;
        g_variant_iter_next(words, "u", &state);
        g_variant_iter_free(words);
        const auto has = [&](unsigned bit) { return (state >> bit & 1U) != 0; };
        if (!has(StateShowing))
            return std::nullopt;

        Control control;
        control.Focused = has(StateFocused);
        control.Checked = has(StateChecked);
        control.Enabled = has(StateEnabled);
        control.Name = Name(node);
        control.Role = FirstText(Call(connection_, node, "org.a11y.atspi.Accessible", "GetRoleName"));
        if (control.Role == "text")
            control.Text = FirstText(
                Call(connection_, node, "org.a11y.atspi.Text", "GetText", g_variant_new("(ii)", 0, -1)));
        const Value place =
            Call(connection_, node, "org.a11y.atspi.Component", "GetExtents", g_variant_new("(u)", 0U));
        if (Is(place, "((iiii))"))
            g_variant_get(place.get(), "((iiii))", &control.Place.X, &control.Place.Y, &control.Place.Width,
                          &control.Place.Height);
        return control;
    }

    /// Appends a control that is shown and all in it.
    void Walk(const Node& node, int depth, std::vector<Control>& found) const {
        auto control = Read(node);
        if (!control || depth > DeepestControl)
            return;
        found.push_back(*std::move(control));
        for (const Node& child : Children(node))
            Walk(child, depth + 1, found);
    }

  private:
    Connection connection_;
};

ScreenReader::ScreenReader(const std::string& sessionBus) {
    const Connection session = Connect(sessionBus);
    const std::string address =
        FirstText(Call(session, {"org.a11y.Bus", "/org/a11y/bus"}, "org.a11y.Bus", "GetAddress"));
    if (address.empty())
        throw Fault("there is no bus for the accessibility tree");
    tree_ = std::make_shared<Tree>(Connect(address));
}

std::vector<Control> ScreenReader::Controls(const std::string& title) const {
    std::vector<Control> found;
    const Node desktop{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
    for (const Node& program : tree_->Children(desktop))
        for (const Node& window : tree_->Children(program))
            if (tree_->Name(window) == title)
                tree_->Walk(window, 0, found);
    return found;
}

} // namespace orvane::tour
