// 動きの緩急。t は経過、b は始まりの値、c は変化する量、d は全体の長さ。
// 使い方: mc._x = Easing.out(t, 0, 200, 24);
class Easing {
	static function linear(t, b, c, d) {
		return b + c * t / d;
	}
	static function accelerate(t, b, c, d) {
		var u = t / d;
		return b + c * u * u;
	}
	static function decelerate(t, b, c, d) {
		var u = 1 - t / d;
		return b + c * (1 - u * u);
	}
	static function smooth(t, b, c, d) {
		var u = t / d;
		return b + c * u * u * (3 - 2 * u);
	}
	static function bounce(t, b, c, d) {
		var u = 1 - t / d;
		return b + c * (1 - Math.abs(Math.cos(u * Math.PI * 3.5 - Math.PI * 3.5)) * u * u);
	}
	static function elastic(t, b, c, d) {
		var u = t / d;
		return b + c * (1 - Math.cos(u * Math.PI * 6) * Math.pow(2, -8 * u) * (1 - u));
	}
}
