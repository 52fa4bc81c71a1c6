#pragma once
#include "platform/win32/com/dispatch_arguments.h"
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/com/ole_traits.h"
#include "platform/win32/com/ole_variant.h"
#include <functional>
#include <initializer_list>
#include <optional>
#include <tuple>
#include <utility>

namespace tolva::win32 {

template <class> struct MemberFunction;

template <class C, class R, class... A> struct MemberFunction<R (C::*)(A...)> {
    using Result = R;
    using Arguments = std::tuple<A...>;
};

template <class C, class R, class... A>
struct MemberFunction<R (C::*)(A...) const> : MemberFunction<R (C::*)(A...)> { };

// A method parameter that callers may leave out: its position, the value it then takes, and the
// enumeration it is typed with, if any.
struct OptionalParameter {
    size_t index;
    std::optional<int32_t> defaultValue = std::nullopt; // none: the type's default
    const wchar_t* enumName = nullptr;
};

// Builds binding-table entries for the public members of a C++ class: a core control, or any
// object a BoundDispatch serves (a collection, a pop-up window, a property page, the host's
// form, menus and extenders); an entry is called on its BindingTarget's BoundObject(), which
// must be an Object. Types, argument counts and conversions follow from the member functions'
// signatures; an enumeration names its type with Enum(L"tk..."). A parameter taken by non-const
// reference is [in, out]: what the object leaves in it goes back to the caller's variable. A
// method's optional parameters are listed with the value a caller who leaves one out stands
// for; a std::optional parameter is optional by itself and empty when left out.
template <class Object> class Binder {
public:
    // A property read by Get and, unless it is read-only, assigned by Let. Extra parameters of
    // Get are index arguments; Let takes the same ones followed by the value.
    template <auto Get, auto Let = nullptr>
    static DispatchMember Property(DISPID id, const wchar_t* name, TypeSpec type = DefaultType<Get>())
    {
        DispatchMember member;
        member.id = id;
        member.name = name;
        member.type = type;
        member.parameters = ParameterTypes<Get>(std::make_index_sequence<ArgumentCount<Get>()>());
        member.get = &CallGet<Get>;
        if constexpr (Let != nullptr)
            member.let = &CallLet<Let>;
        return member;
    }

    template <auto Call>
    static DispatchMember Method(DISPID id, const wchar_t* name, std::initializer_list<OptionalParameter> optional = {})
    {
        DispatchMember member = Property<Call>(id, name);
        member.isMethod = true;
        for (const OptionalParameter& p : optional) {
            member.parameters.at(p.index).optional = true;
            member.parameters.at(p.index).defaultValue = p.defaultValue;
            member.parameters.at(p.index).enumName = p.enumName;
        }
        return member;
    }

private:
    template <auto F> using Signature = MemberFunction<decltype(F)>;

    template <auto F> static constexpr size_t ArgumentCount()
    {
        return std::tuple_size_v<typename Signature<F>::Arguments>;
    }

    template <auto F, size_t I> using DeclaredArgument = std::tuple_element_t<I, typename Signature<F>::Arguments>;
    template <auto F, size_t I> using ArgumentType = std::remove_cvref_t<DeclaredArgument<F, I>>;
    template <auto F, size_t I>
    static constexpr bool ByReference = std::is_lvalue_reference_v<DeclaredArgument<F, I>>
        && !std::is_const_v<std::remove_reference_t<DeclaredArgument<F, I>>>;

    template <auto Get> static constexpr TypeSpec DefaultType()
    {
        using R = std::remove_cvref_t<typename Signature<Get>::Result>;
        if constexpr (std::is_void_v<R>)
            return {};
        else
            return { OleTraits<R>::Type };
    }

    template <auto F, size_t... I> static std::vector<TypeSpec> ParameterTypes(std::index_sequence<I...>)
    {
        return { TypeSpec {
            OleTraits<ArgumentType<F, I>>::Type, nullptr, ByReference<F, I>, IsOptional<ArgumentType<F, I>> }... };
    }

    static Object& BoundTo(BindingTarget& target) { return *static_cast<Object*>(target.BoundObject()); }

    template <auto F, size_t I> using Converted = decltype(OleTraits<ArgumentType<F, I>>::From(std::declval<VARIANT>()));

    // The index arguments of F converted from the positional arguments; one left out takes its
    // default.
    template <auto F, size_t... I>
    static auto ConvertArguments(const DispatchArguments& arguments, std::index_sequence<I...>)
    {
        return std::tuple<Converted<F, I>...> { arguments.Convert(I, &OleTraits<ArgumentType<F, I>>::From)... };
    }

    // The values of the [in, out] parameters go back to the caller's variables.
    template <auto F, size_t I, class Value>
    static void PutBackArgument(const DispatchArguments& arguments, const Value& value)
    {
        if constexpr (ByReference<F, I>) {
            if (!arguments.Has(I))
                return;
            OleVariant converted;
            OleTraits<ArgumentType<F, I>>::Put(*converted.Put(), value);
            PutBack(arguments.At(I), converted.Get());
        }
    }
    template <auto F, class Values, size_t... I>
    static void PutBackArguments(const DispatchArguments& arguments, const Values& values, std::index_sequence<I...>)
    {
        (PutBackArgument<F, I>(arguments, std::get<I>(values)), ...);
    }

    template <auto Get> static void CallGet(BindingTarget& target, const DispatchArguments& arguments, VARIANT& result)
    {
        auto values = ConvertArguments<Get>(arguments, std::make_index_sequence<ArgumentCount<Get>()>());
        Object& object = BoundTo(target);
        using R = typename Signature<Get>::Result;
        if constexpr (std::is_void_v<R>) {
            std::apply([&](auto&... v) { std::invoke(Get, object, v...); }, values);
            PutBackArguments<Get>(arguments, values, std::make_index_sequence<ArgumentCount<Get>()>());
        } else {
            decltype(auto) value = std::apply([&](auto&... v) -> R { return std::invoke(Get, object, v...); }, values);
            OleTraitsOf<R>::Put(result, value);
        }
    }

    template <auto Let> static void CallLet(BindingTarget& target, const DispatchArguments& arguments)
    {
        constexpr size_t indexCount = ArgumentCount<Let>() - 1;
        auto indexes = ConvertArguments<Let>(arguments, std::make_index_sequence<indexCount>());
        auto value = arguments.ConvertValue(&OleTraits<ArgumentType<Let, indexCount>>::From);
        Object& object = BoundTo(target);
        std::apply([&](auto&... v) { std::invoke(Let, object, v..., value); }, indexes);
    }
};

} // namespace tolva::win32
