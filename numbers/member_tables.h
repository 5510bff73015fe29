// Host tables made from a list of rows for one class: the class's name put where a
// declaration names the class itself, and only the rows that have a handler. The
// tables live for the process, as the host keeps pointing at them.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "numbers/number_rows.h"

namespace zqt {

class MethodTable {
public:
    MethodTable(const std::vector<ListedMethod> & list, const char * className);
    MethodTable(const MethodTable &) = delete;
    MethodTable & operator=(const MethodTable &) = delete;

    REALmethodDefinition * rows() { return rows_.empty() ? nullptr : rows_.data(); }
    size_t count() const { return rows_.size(); }

private:
    std::deque<std::string> declarations_; // stays where it is as it grows
    std::vector<REALmethodDefinition> rows_;
};

class PropertyTable {
public:
    explicit PropertyTable(const std::vector<ListedProperty> & list);
    PropertyTable(const PropertyTable &) = delete;
    PropertyTable & operator=(const PropertyTable &) = delete;

    REALproperty * rows() { return rows_.empty() ? nullptr : rows_.data(); }
    size_t count() const { return rows_.size(); }

private:
    std::vector<REALproperty> rows_;
};

// `declaration` with every placeholder replaced by `className`.
std::string WithClassName(const char * declaration, const char * className);

} // namespace zqt
