// VOLK, called like its users call it: the dispatcher looks at the alignment of the vectors and
// takes the kernel that ranks first for the processor.
#include <volk/volk.h>

#include <cmath>

#include "stats/reductions.h"
#include "stats/sum_agreement.h"

namespace veks::bench {
namespace {

constexpr const char* kName = "VOLK";

// function(dst, src, len)
template <class... P>
Peer one(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kSrc1, kLen);
}

template <class... P>
Peer oneInPlace(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kLen);
}

// function(dst, src1, src2, len)
template <class... P>
Peer two(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kSrc1, kSrc2, kLen);
}

template <class... P>
Peer twoInPlace(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kSrc1, kDst, kLen);
}

// The same for functions whose operands stand the other way round.
template <class... P>
Peer swapped(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kSrc2, kSrc1, kLen);
}

template <class... P>
Peer swappedInPlace(void (**function)(P...)) {
  return peerWith(kName, function, kDst, kDst, kSrc1, kLen);
}

// function(dst, src, value, len)
template <class Value, class... P>
Peer withValue(void (**function)(P...), Value value) {
  return peerWith(kName, function, kDst, kSrc1, value, kLen);
}

lv_32fc_t complexConstant() {
  const Vek32fc value = constant<Vek32fc>();
  return lv_cmake(value.re, value.im);
}

// Positions alone; the value is read there.
template <void (**position)(uint32_t*, const float*, uint32_t)>
void extreme(const float* src, int len, float* value, int* index) {
  uint32_t at = 0;
  (*position)(&at, src, static_cast<uint32_t>(len));
  *value = src[at];
  *index = static_cast<int>(at);
}

// It counts positions in floats, which miss them from 2^24 on: its results are not compared.
template <void (**function)(uint32_t*, const float*, uint32_t)>
Peer position() {
  return approximate([](auto...) { return true; }, reduction(kName, extreme<function>));
}

// function(result, src, len)
template <class R, class... P>
Peer sum(void (**function)(P...)) {
  return reordered<R>(peerWith(kName, function, kDst, kSrc1, kLen));
}

// function(result, src1, src2, len). The product with a real vector needs aligned ones.
template <class R, class... P>
Peer dot(void (**function)(P...)) {
  return reordered<R>(two(function));
}

// It multiplies by the scale factor into integers and divides by it out of them.
const float kFactorToInteger = std::ldexp(1.0F, -kToInteger);
const float kDivisorFromInteger = std::ldexp(1.0F, -kToInteger);

// The products of spectra in Perm format: two real values, then complex ones.
void multiplyPerm(const float* src1, const float* src2, float* dst, int len) {
  dst[0] = src1[0] * src2[0];
  dst[1] = src1[1] * src2[1];
  volk_32fc_x2_multiply_32fc(
      reinterpret_cast<lv_32fc_t*>(dst + 2), reinterpret_cast<const lv_32fc_t*>(src1 + 2),
      reinterpret_cast<const lv_32fc_t*>(src2 + 2), static_cast<unsigned>(len / 2 - 1));
}

// Fused operations, approximate roots and quotients.
template <class T>
Peer near(Peer peer) {
  return approximate(nearAgreement<T>(), std::move(peer));
}

const OptionalPeers peers({
    {"veksAdd_32f", two(&volk_32f_x2_add_32f)},
    {"veksAdd_32f_I", twoInPlace(&volk_32f_x2_add_32f)},
    {"veksAdd_64f", two(&volk_64f_x2_add_64f)},
    {"veksAdd_64f_I", twoInPlace(&volk_64f_x2_add_64f)},
    {"veksAdd_32fc", two(&volk_32fc_x2_add_32fc)},
    {"veksAdd_32fc_I", twoInPlace(&volk_32fc_x2_add_32fc)},
    {"veksSub_32f", swapped(&volk_32f_x2_subtract_32f)},
    {"veksSub_32f_I", swappedInPlace(&volk_32f_x2_subtract_32f)},
    {"veksMul_32f", two(&volk_32f_x2_multiply_32f)},
    {"veksMul_64f", two(&volk_64f_x2_multiply_64f)},
    {"veksMul_32fc", near<Vek32fc>(two(&volk_32fc_x2_multiply_32fc))},
    {"veksMulPerm_32f", approximate(productSumAgreement<float>(),
                                    peerWith(kName, multiplyPerm, kSrc1, kSrc2, kDst, kLen))},
    {"veksMul_32f32fc", swapped(&volk_32fc_32f_multiply_32fc)},
    {"veksDiv_32f", near<Vek32f>(swapped(&volk_32f_x2_divide_32f))},
    {"veksDiv_32fc", near<Vek32fc>(swapped(&volk_32fc_x2_divide_32fc))},
    {"veksAddC_32f", withValue(&volk_32f_s32f_add_32f, constant<float>())},
    {"veksMulC_32f", withValue(&volk_32f_s32f_multiply_32f, constant<float>())},
    {"veksMulC_32fc", near<Vek32fc>(withValue(&volk_32fc_s32fc_multiply_32fc, complexConstant()))},
    {"veksSqrt_32f", near<Vek32f>(one(&volk_32f_sqrt_32f))},

    {"veksConvert_16s32f", withValue(&volk_16i_s32f_convert_32f, 1.0F)},
    {"veksConvert_8s32f", withValue(&volk_8i_s32f_convert_32f, 1.0F)},
    {"veksConvert_32s32f", withValue(&volk_32i_s32f_convert_32f, 1.0F)},
    {"veksConvert_32f64f", one(&volk_32f_convert_64f)},
    {"veksConvert_64f32f", one(&volk_64f_convert_32f)},
    {"veksConvert_16sc32fc", one(&volk_16ic_convert_32fc)},
    {"veksConvert_16s32f_Sfs", withValue(&volk_16i_s32f_convert_32f, kDivisorFromInteger)},
    {"veksConvert_32s32f_Sfs", withValue(&volk_32i_s32f_convert_32f, kDivisorFromInteger)},
    {"veksConvert_32f8s_Sfs", withValue(&volk_32f_s32f_convert_8i, kFactorToInteger)},
    {"veksConvert_32f16s_Sfs", withValue(&volk_32f_s32f_convert_16i, kFactorToInteger)},
    {"veksConvert_32f32s_Sfs", withValue(&volk_32f_s32f_convert_32i, kFactorToInteger)},

    {"veksMinIndx_32f", position<&volk_32f_index_min_32u>()},
    {"veksMaxIndx_32f", position<&volk_32f_index_max_32u>()},
    {"veksSum_32f:fast", sum<Vek32f>(&volk_32f_accumulator_s32f)},
    {"veksSum_32fc", sum<Vek32fc>(&volk_32fc_accumulator_s32fc)},
    {"veksDotProd_32f", dot<Vek32f>(&volk_32f_x2_dot_prod_32f)},
    {"veksDotProd_32fc", dot<Vek32fc>(&volk_32fc_x2_dot_prod_32fc)},

    {"veksAnd_32u", two(&volk_32i_x2_and_32i)},
    {"veksAnd_32u_I", twoInPlace(&volk_32i_x2_and_32i)},
    {"veksOr_32u", two(&volk_32i_x2_or_32i)},
    {"veksOr_32u_I", twoInPlace(&volk_32i_x2_or_32i)},
    {"veksSwapBytes_16u_I", oneInPlace(&volk_16u_byteswap)},
    {"veksSwapBytes_32u_I", oneInPlace(&volk_32u_byteswap)},
});

}  // namespace
}  // namespace veks::bench
