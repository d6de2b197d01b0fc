// CIMValue<T>: one or more values of one element type, the payload of a
// CIMProperty. A scalar holds exactly one element, an array any number.
//
// The two flags are stored and copied, nothing more. A property keeps only the
// second flag of the value it is built from (see CIMProperty).
//
// Instantiated for bool, signed char, unsigned char, short, unsigned short,
// int, unsigned int, long long, unsigned long long, float, double,
// std::string, CIMObjectPath and CIMInstance.
#ifndef VEX_FRAMEWORK_CIMVALUE_H
#define VEX_FRAMEWORK_CIMVALUE_H

#include <cstddef>
#include <utility>
#include <vector>

namespace vex::cim::fwf {

template <typename T>
class CIMValue {
public:
    CIMValue() = default;

    // A scalar: the sequence holds just this value.
    explicit CIMValue(const T& value, bool firstFlag = false, bool secondFlag = false)
        : m_values(1, value), m_firstFlag(firstFlag), m_secondFlag(secondFlag) {}

    // An array (any number of elements, none included).
    CIMValue(std::vector<T> values, bool firstFlag, bool secondFlag)
        : m_values(std::move(values)), m_firstFlag(firstFlag), m_secondFlag(secondFlag) {}

    // The element sequence; arrays are built by filling it directly.
    std::vector<T>& getValues() { return m_values; }
    const std::vector<T>& getValues() const { return m_values; }

    void addValue(const T& value) { m_values.push_back(value); }
    bool isEmpty() const { return m_values.empty(); }
    std::size_t size() const { return m_values.size(); }

    bool getFirstFlag() const { return m_firstFlag; }
    bool getSecondFlag() const { return m_secondFlag; }
    void setFirstFlag(bool flag) { m_firstFlag = flag; }
    void setSecondFlag(bool flag) { m_secondFlag = flag; }

private:
    std::vector<T> m_values;
    bool m_firstFlag = false;
    bool m_secondFlag = false;
};

}  // namespace vex::cim::fwf

#endif
