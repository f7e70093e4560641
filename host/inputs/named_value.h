/// A value by its name, as a flow hands it over and as a journal keeps it.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host {

/// The readers throw std::invalid_argument, "elevator must be a number from -1 to 1", for any other
/// value.
struct NamedValue {
  /// std::monostate stands for everything that cannot be a value.
  using Value = std::variant<std::monostate, bool, double, std::string, std::vector<double>>;

  std::string name;
  Value value;

  bool operator==(const NamedValue&) const = default;

  double number(double least, double most) const;
  /// One number for both sides or a list of two, left first.
  std::array<double, 2> both(double least, double most) const;
  bool truth() const;
  /// The place of the number, or of the text, in the list.
  std::size_t one_of(std::span<const double> numbers) const;
  std::size_t one_of(std::span<const std::string_view> texts) const;

 private:
  [[noreturn]] void wrong(const std::string& wanted) const;
};

}  // namespace host
