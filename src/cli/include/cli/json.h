#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "model/element.h"
#include "text/numbers.h"
#include "text/windows1252.h"

/// Values of the document as JSON: bytes and singles are numbers, all else is text.
namespace nimbrel {

using Json = nlohmann::ordered_json;

inline Json jsonOf(const SharedText& oneByteText) { return toUtf8(oneByteText); }
inline Json jsonOf(const std::string& oneByteText) { return toUtf8(oneByteText); }
inline Json jsonOf(bool value) { return value; }
inline Json jsonOf(std::uint8_t value) { return value; }
inline Json jsonOf(std::int32_t value) { return value; }
/// As its general form, so that 0.1 reads 0.1 and 30 reads 30.
inline Json jsonOf(float value) { return Json::parse(generalForm(value)); }

/// The stored properties by name, in file order.
inline Json jsonOf(const Element& element) {
  Json properties = Json::object();
  std::visit(
      [&]<class E>(const E& object) {
        eachProperty<E>([&](const Property<E>& property, auto field) {
          properties.emplace(property.name, jsonOf(object.*field));
        });
      },
      element);
  return properties;
}

}  // namespace nimbrel
