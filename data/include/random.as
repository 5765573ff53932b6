// low ˆÈã high ˆÈ‰º‚Ì®”
function randomBetween(low, high) {
	return low + random(high - low + 1);
}
// ”z—ñ‚Ì‡‚ğ“ü‚ê‘Ö‚¦‚é
function shuffle(list) {
	for (var i = list.length - 1; i > 0; i--) {
		var j = random(i + 1);
		var kept = list[i];
		list[i] = list[j];
		list[j] = kept;
	}
	return list;
}
