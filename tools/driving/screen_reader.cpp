#include "tools/driving/screen_reader.h"

#include <algorithm>
#include <utility>

namespace orvane::driving {

namespace {

using Node = std::shared_ptr<AtspiAccessible>;

constexpr int AnswerTime = 3000; // milliseconds
constexpr int MostChildren = 200;

/// Takes ownership of a reference; nullptr is allowed.
template <class T>
std::shared_ptr<T> Own(T* object) {
    return {object, [](T* old) {
                if (old != nullptr)
                    g_object_unref(old);
            }};
}

std::string Own(char* text) {
    std::string copy = text == nullptr ? "" : text;
    g_free(text);
    return copy;
}

/// The children of a node; none if the program does not answer.
std::vector<Node> ChildrenOf(const Node& node) {
    std::vector<Node> children;
    const int count = atspi_accessible_get_child_count(node.get(), nullptr);
    for (int index = 0; index < count && index < MostChildren; ++index)
        if (Node child = Own(atspi_accessible_get_child_at_index(node.get(), index, nullptr)))
            children.push_back(std::move(child));
    return children;
}

std::string NameOf(const Node& node) {
    return Own(atspi_accessible_get_name(node.get(), nullptr));
}

/// The current state, not the one in the library's cache; nullptr if the program does not answer.
std::shared_ptr<AtspiStateSet> StateOf(const Node& node) {
    atspi_accessible_clear_cache(node.get());
    return Own(atspi_accessible_get_state_set(node.get()));
}

bool Walk(const Node& node, const std::function<bool(const Control&)>& look) {
    const auto state = StateOf(node);
    const auto is = [&](AtspiStateType type) { return atspi_state_set_contains(state.get(), type) != FALSE; };
    if (!state || !is(ATSPI_STATE_SHOWING))
        return false;
    Control control{.Role = Own(atspi_accessible_get_role_name(node.get(), nullptr)),
                    .Name = NameOf(node),
                    .Text = "",
                    .Focused = is(ATSPI_STATE_FOCUSED),
                    .Checked = is(ATSPI_STATE_CHECKED),
                    .Node = node};
    if (control.Role == "text")
        if (const auto text = Own(atspi_accessible_get_text_iface(node.get())))
            control.Text = Own(atspi_text_get_text(text.get(), 0, -1, nullptr));
    if (look(control))
        return true;
    return std::ranges::any_of(ChildrenOf(node), [&](const Node& child) { return Walk(child, look); });
}

std::vector<Node> AllWindows(const Node& root) {
    std::vector<Node> windows;
    // A program can be in the tree twice, once for each toolkit that it uses.
    for (const Node& program : ChildrenOf(root))
        for (Node& window : ChildrenOf(program))
            windows.push_back(std::move(window));
    return windows;
}

} // namespace

ScreenReader::ScreenReader() {
    atspi_init();
    atspi_set_timeout(AnswerTime, AnswerTime);
    // The library's cache is switched off, because it is out of date after a window has changed. The cache
    // of states has to stay on: without it the library asks for a state while it handles the answer of a GTK
    // program, and waits for itself for ever.
    root_ = Own(atspi_get_desktop(0));
    atspi_accessible_set_cache_mask(root_.get(), ATSPI_CACHE_STATES);
}

std::vector<std::string> ScreenReader::Titles() const {
    std::vector<std::string> titles;
    for (const Node& window : AllWindows(root_)) {
        const auto state = StateOf(window);
        if (state && atspi_state_set_contains(state.get(), ATSPI_STATE_SHOWING) != FALSE)
            titles.push_back(NameOf(window));
    }
    return titles;
}

bool ScreenReader::Any(const std::string& title, const std::function<bool(const Control&)>& look) const {
    return std::ranges::any_of(
        AllWindows(root_), [&](const Node& window) { return NameOf(window) == title && Walk(window, look); });
}

AtspiRect ScreenReader::PlaceOf(const Control& control) {
    const auto component = Own(atspi_accessible_get_component_iface(control.Node.get()));
    g_autofree AtspiRect* place =
        component ? atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr) : nullptr;
    return place == nullptr ? AtspiRect{} : *place;
}

bool ScreenReader::Focus(const Control& control) {
    const auto component = Own(atspi_accessible_get_component_iface(control.Node.get()));
    return component && atspi_component_grab_focus(component.get(), nullptr) != FALSE;
}

} // namespace orvane::driving
