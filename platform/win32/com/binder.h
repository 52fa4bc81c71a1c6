#pragma once
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/dispatch_arguments.h"
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/com/ole_traits.h"
#include <functional>
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

// Builds binding-table entries for the public members of a core control class. Types, argument
// counts and conversions follow from the member functions' signatures; an enumeration names
// its type with Enum(L"tk...").
template <class Control> class Binder {
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

    template <auto Call> static DispatchMember Method(DISPID id, const wchar_t* name)
    {
        DispatchMember member = Property<Call>(id, name);
        member.isMethod = true;
        return member;
    }

private:
    template <auto F> using Signature = MemberFunction<decltype(F)>;

    template <auto F> static constexpr size_t ArgumentCount()
    {
        return std::tuple_size_v<typename Signature<F>::Arguments>;
    }

    template <auto F, size_t I>
    using ArgumentType = std::remove_cvref_t<std::tuple_element_t<I, typename Signature<F>::Arguments>>;

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
        return { TypeSpec { OleTraits<ArgumentType<F, I>>::Type }... };
    }

    // The index arguments of F converted from the positional arguments.
    template <auto F, size_t... I>
    static auto ConvertArguments(const DispatchArguments& arguments, std::index_sequence<I...>)
    {
        return std::tuple<decltype(OleTraits<ArgumentType<F, I>>::From(std::declval<VARIANT>()))...> {
            arguments.Convert(I, &OleTraits<ArgumentType<F, I>>::From)...
        };
    }

    template <auto Get> static void CallGet(ControlObject& object, const DispatchArguments& arguments, VARIANT& result)
    {
        auto values = ConvertArguments<Get>(arguments, std::make_index_sequence<ArgumentCount<Get>()>());
        Control& control = object.ControlAs<Control>();
        using R = typename Signature<Get>::Result;
        if constexpr (std::is_void_v<R>) {
            std::apply([&](auto&... v) { std::invoke(Get, control, v...); }, values);
        } else {
            decltype(auto) value = std::apply([&](auto&... v) -> R { return std::invoke(Get, control, v...); }, values);
            OleTraitsOf<R>::Put(result, value);
        }
    }

    template <auto Let> static void CallLet(ControlObject& object, const DispatchArguments& arguments)
    {
        constexpr size_t indexCount = ArgumentCount<Let>() - 1;
        auto indexes = ConvertArguments<Let>(arguments, std::make_index_sequence<indexCount>());
        auto value = arguments.ConvertValue(&OleTraits<ArgumentType<Let, indexCount>>::From);
        Control& control = object.ControlAs<Control>();
        std::apply([&](auto&... v) { std::invoke(Let, control, v..., value); }, indexes);
    }
};

} // namespace tolva::win32
