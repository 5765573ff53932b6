// 度とラジアン
function toRadian(degrees) {
	return degrees * Math.PI / 180;
}
function toDegree(radians) {
	return radians * 180 / Math.PI;
}
// 二つのムービークリップの距離と向き
function distanceOf(a, b) {
	var dx = b._x - a._x;
	var dy = b._y - a._y;
	return Math.sqrt(dx * dx + dy * dy);
}
function directionOf(a, b) {
	return toDegree(Math.atan2(b._y - a._y, b._x - a._x));
}
