// The interface both number classes present to the host, as one list: methods, shared
// methods and properties, row for row in the host's order. "@" in a declaration stands
// for the class's own name. A row whose handler comes with a later part of the plugin
// is kept in its place without a handler and is not registered until the handler exists.
#pragma once

#include <vector>

#include "numbers/arithmetic.h"
#include "numbers/factories.h"
#include "numbers/lifecycle.h"
#include "numbers/native_properties.h"
#include "numbers/raw_data.h"
#include "numbers/variant_conversion.h"
#include "text/text_methods.h"

namespace zqt {

inline const char kSelfPlaceholder = '@';

struct ListedMethod {
    const char * declaration;
    REALproc function;       // null: not yet served
    REALproc setter = nullptr;
    bool hidden = false;
};

struct ListedProperty {
    const char * name;
    const char * type;
    REALproc getter;         // null: not yet served
    REALproc setter;         // null: read-only
};

inline const REALproc kNotYetServed = nullptr;

template <class F>
REALproc Handler(F f)
{
    return reinterpret_cast<REALproc>(f);
}

template <class N>
std::vector<ListedMethod> NumberMethods()
{
    using L = Lifecycle<N>;
    using A = Arithmetic<N>;
    using T = TextMethods<N>;
    return {
        {"Ceil as @", Handler(&A::Ceil)},
        {"SkipFraction as @", Handler(&A::SkipFraction)},
        {"Frac as @", Handler(&A::Frac)},
        {"Floor as @", Handler(&A::Floor)},
        {"GetStringValue(Conversion as BigNumberConversionZQT) as String", Handler(&T::GetStringValueConv)},
        {"GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as Integer = 15, "
         "round as Integer = -1, TrimZeros as Boolean = true, comma as String = \".\") as String",
         Handler(&T::GetStringValueExt)},
        {"SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref ValueRead as boolean)",
         Handler(&T::SetStringValueExt)},
        {"SetStringValue(Text As String, Conversion as BigNumberConversionZQT, byref AfterText as String, "
         "Byref ValueRead as boolean)",
         Handler(&T::SetStringValueConv)},
        {"SetStringValue(Text As String, Conversion as BigNumberConversionZQT)", Handler(&T::SetStringValueConv2)},
        {"StringValue(Base as Integer) as String", Handler(&T::GetStringValueBase), Handler(&T::SetStringValueBase)},
        {"Round as @", Handler(&A::Round)},
        {"Equals(other as @) as Boolean", Handler(&A::Equals)},
        {"Sqrt as @", kNotYetServed},
        {"Pow(other as @) as @", kNotYetServed},
        {"Modulate2 as Integer", Handler(&A::Mod2)},
        {"Modulate(other as @) as @", Handler(&A::Mod)},
        {"Divide(other as @, round as boolean = true) as @", Handler(&A::Div)},
        {"Multiply(other as @, round as boolean = true) as @", Handler(&A::Mul)},
        {"Multiply(value as Integer) as @", Handler(&A::MulInt)},
        {"Multiply(value as UInt32) as @", Handler(&A::MulUInt)},
        {"BitXOr(other as @) as @", Handler(&A::BitwiseXor)},
        {"BitOr(other as @) as @", Handler(&A::BitwiseOr)},
        {"BitAnd(other as @) as @", Handler(&A::BitwiseAnd)},
        {"Subtract(other as @, round as boolean = true) as @", Handler(&A::Sub)},
        {"Add(other as @, round as boolean = true) as @", Handler(&A::Add)},
        {"Abs as @", Handler(&A::GetAbs)},
        {"Negate as @", Handler(&A::ChangeSign)},
        {"Constructor", Handler(&L::ConstructorEmpty)},
        {"Constructor(value as String)", Handler(&L::ConstructorString)},
        {"Constructor(value as Int32)", Handler(&L::ConstructorInt32)},
        {"Constructor(value as Int64)", Handler(&L::ConstructorInt64)},
        {"Constructor(value as UInt32)", Handler(&L::ConstructorUInt32)},
        {"Constructor(value as UInt64)", Handler(&L::ConstructorUInt64)},
        {"Constructor(value as Double)", Handler(&L::ConstructorDouble)},
        {"Constructor(value as Single)", Handler(&L::ConstructorSingle)},
        {"Constructor(value as Currency)", Handler(&L::ConstructorCurrency)},
        {"Constructor(other as @)", Handler(&L::ConstructorCopy)},
        {"Operator_Convert(value as String)", Handler(&L::ConstructorString)},
        {"Operator_Convert as String", Handler(&T::Operator_ConvertString)},
        {"Operator_Add(other as @) as @", Handler(&A::Operator_Add)},
        {"Operator_AddRight(other as @) as @", Handler(&A::Operator_Add)},
        {"Operator_Subtract(other as @) as @", Handler(&A::Operator_Subtract)},
        {"Operator_SubtractRight(other as @) as @", Handler(&A::Operator_Subtract)},
        {"Operator_Multiply(other as @) as @", Handler(&A::Operator_Multiply)},
        {"Operator_MultiplyRight(other as @) as @", Handler(&A::Operator_Multiply)},
        {"Operator_Divide(other as @) as @", Handler(&A::Operator_Divide)},
        {"Operator_DivideRight(other as @) as @", Handler(&A::Operator_Divide)},
        {"Operator_IntegerDivide(other as @) as @", Handler(&A::Operator_IntegerDivide)},
        {"Operator_IntegerDivideRight(other as @) as @", Handler(&A::Operator_IntegerDivide)},
        {"Operator_Modulo(other as @) as @", Handler(&A::Mod)},
        {"Operator_ModuloRight(other as @) as @", Handler(&A::Mod)},
        {"Operator_Negate as @", Handler(&A::Operator_Negate)},
        {"Operator_Power(other as @) as @", kNotYetServed},
        {"Operator_PowerRight(other as @) as @", kNotYetServed},
        {"Operator_Compare(other as @) as Integer", Handler(&A::Operator_Compare)},
    };
}

// `NumberWithUInteger` must stay last: hosts before UInteger register one row fewer.
template <class N>
std::vector<ListedMethod> NumberSharedMethods()
{
    using F = Factories<N>;
    using T = TextMethods<N>;
    using V = VariantConversion<N>;
    return {
        {"LibTypeStr as String", Handler(&F::rbLibTypeStr), nullptr, true},
        {"NumberWithInteger(value as Integer) as @", Handler(&F::NumberWithInteger)},
        {"NumberWithInt64(value as Int64) as @", Handler(&F::NumberWithInt64)},
        {"NumberWithInt32(value as Int32) as @", Handler(&F::NumberWithInt32)},
        {"NumberWithUInt64(value as UInt64) as @", Handler(&F::NumberWithUInt64)},
        {"NumberWithUInt32(value as UInt32) as @", Handler(&F::NumberWithUInt32)},
        {"NumberWithVariant(value as variant) as @", Handler(&V::NumberWithVariant)},
        {"NumberWithSingle(value as single) as @", Handler(&F::NumberWithSingle)},
        {"NumberWithDouble(value as double) as @", Handler(&F::NumberWithDouble)},
        {"NumberWithCurrency(value as Currency) as @", Handler(&F::NumberWithCurrency)},
        {"NumberWithString(value as String) as @", Handler(&T::NumberWithString)},
        {"Abs(value as @) as @", kNotYetServed},
        {"Sgn(value as @) as @", kNotYetServed},
        {"Root(value as @, index as @) as @", kNotYetServed},
        {"DegToDeg(d as @, m as @, s as @) as @", kNotYetServed},
        {"DegToRad(d as @, m as @, s as @) as @", kNotYetServed},
        {"DegToGrad(d as @, m as @, s as @) as @", kNotYetServed},
        {"DegToGrad(value as @) as @", kNotYetServed},
        {"GradToDeg(value as @) as @", kNotYetServed},
        {"GradToRad(value as @) as @", kNotYetServed},
        {"RadToGrad(value as @) as @", kNotYetServed},
        {"DegToRad(value as @) as @", kNotYetServed},
        {"RadToDeg(value as @) as @", kNotYetServed},
        {"ACoth(value as @) as @", kNotYetServed},
        {"ATanh(value as @) as @", kNotYetServed},
        {"ACosh(value as @) as @", kNotYetServed},
        {"ASinh(value as @) as @", kNotYetServed},
        {"Coth(value as @) as @", kNotYetServed},
        {"Tanh(value as @) as @", kNotYetServed},
        {"Cosh(value as @) as @", kNotYetServed},
        {"Sinh(value as @) as @", kNotYetServed},
        {"ACot(value as @) as @", kNotYetServed},
        {"ATan(value as @) as @", kNotYetServed},
        {"ACos(value as @) as @", kNotYetServed},
        {"ASin(value as @) as @", kNotYetServed},
        {"Cot(value as @) as @", kNotYetServed},
        {"Tan(value as @) as @", kNotYetServed},
        {"Cos(value as @) as @", kNotYetServed},
        {"Sin(value as @) as @", kNotYetServed},
        {"Log(value as @, base as @) as @", kNotYetServed},
        {"Ln(value as @) as @", kNotYetServed},
        {"Exp(value as @) as @", kNotYetServed},
        {"Min as @", kNotYetServed},
        {"Max as @", kNotYetServed},
        {"Zero as @", kNotYetServed},
        {"One as @", kNotYetServed},
        {"Nan as @", kNotYetServed},
        {"Pi as @", kNotYetServed},
        {"HalfPi as @", kNotYetServed},
        {"TwoPi as @", kNotYetServed},
        {"E as @", kNotYetServed},
        {"Ln2 as @", kNotYetServed},
        {"Ln10 as @", kNotYetServed},
        {"Rand as @", kNotYetServed},
        {"NumberWithUInteger(value as UInteger) as @", Handler(&F::NumberWithUInteger)},
    };
}

template <class N>
std::vector<ListedProperty> NumberProperties()
{
    using P = NativeProperties<N>;
    using D = RawData<N>;
    using T = TextMethods<N>;
    using V = VariantConversion<N>;
    return {
        {"IsZero", "Boolean", Handler(&P::IsZero), nullptr},
        {"IsNegative", "Boolean", Handler(&P::IsSign), nullptr},
        {"IsNan", "Boolean", Handler(&P::IsNan), nullptr},
        {"IsInteger", "Boolean", Handler(&P::IsInteger), nullptr},
        {"IntegerValue", "Integer", Handler(&P::GetIntegerValue), Handler(&P::SetIntegerValue)},
        {"Int64Value", "Int64", Handler(&P::GetInt64Value), Handler(&P::SetInt64Value)},
        {"UInt64Value", "UInt64", Handler(&P::GetUInt64Value), Handler(&P::SetUInt64Value)},
        {"DoubleValue", "Double", Handler(&P::GetDoubleValue), Handler(&P::SetDoubleValue)},
        {"StringValue", "String", Handler(&T::GetStringValue), Handler(&T::SetStringValue)},
        {"CurrencyValue", "Currency", Handler(&P::GetCurrencyValue), Handler(&P::SetCurrencyValue)},
        {"VariantValue", "Variant", Handler(&V::GetVariantValue), Handler(&V::SetVariantValue)},
        {"DataMantissa", "MemoryBlock", Handler(&D::GetDataMantissa), Handler(&D::SetDataMantissa)},
        {"DataExponent", "MemoryBlock", Handler(&D::GetDataExponent), Handler(&D::SetDataExponent)},
        {"DataFlags", "Integer", Handler(&D::GetDataFlags), Handler(&D::SetDataFlags)},
    };
}

} // namespace zqt
